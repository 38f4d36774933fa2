#pragma once

#include "Quillmere/shell/AppModelContainer.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace quillmere {

class StoreSession;
class TimeFollower;

/// The opened record store for the life of the process, and the retry of private sync. Main thread.
class AppStorageController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(quillmere::PersistenceModes::Mode mode READ mode NOTIFY resultChanged)
    Q_PROPERTY(bool hasStore READ hasStore NOTIFY resultChanged)
    Q_PROPERTY(bool isRetryingICloud READ isRetryingICloud NOTIFY isRetryingICloudChanged)
    Q_PROPERTY(bool didLastICloudRetryFail READ didLastICloudRetryFail NOTIFY
                   didLastICloudRetryFailChanged)

public:
    AppStorageController(AppModelContainer& opener, AppModelContainer::Result result,
                         TimeFollower& time, QObject* parent = nullptr);
    ~AppStorageController() override;

    [[nodiscard]] const AppModelContainer::Result& result() const;
    [[nodiscard]] PersistenceMode mode() const;
    [[nodiscard]] bool hasStore() const;
    [[nodiscard]] bool isRetryingICloud() const;
    [[nodiscard]] bool didLastICloudRetryFail() const;

    /// The session on the open store, or nothing when no store is open.
    [[nodiscard]] StoreSession* session();

    /// Lets go of the store, waits 250 ms and tries private sync again; on failure opens the local
    /// fallback anew. `done` hears whether private sync is on afterwards; it is called at once when
    /// sync is on already or a retry is under way.
    void retryICloud(std::function<void(bool)> done = {});

signals:
    void resultChanged();
    void sessionChanged();
    void isRetryingICloudChanged();
    void didLastICloudRetryFailChanged();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace quillmere
