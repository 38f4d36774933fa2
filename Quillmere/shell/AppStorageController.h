#pragma once

#include "Quillmere/shell/AppModelContainer.h"
#include "Quillmere/shell/PersistenceModes.h"
#include "Quillmere/shell/StoreSession.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace quillmere {

class TimeFollower;

/// The opened record store for the life of the process, and the retry of private sync. Main thread.
///
/// The store is closed and opened anew by a retry. Everything that holds the session lives inside
/// it: whoever makes view models for a session gives them up in `sessionChanged` when `session()`
/// has become null, with `deleteLater` at the latest. The old session goes right after them, in the
/// same turn of the event loop, and the store is not opened again before.
class AppStorageController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(quillmere::PersistenceModes::Mode mode READ qmlMode NOTIFY resultChanged)
    Q_PROPERTY(bool hasStore READ hasStore NOTIFY resultChanged)
    Q_PROPERTY(bool isRetryingICloud READ isRetryingICloud NOTIFY isRetryingICloudChanged)
    Q_PROPERTY(bool didLastICloudRetryFail READ didLastICloudRetryFail NOTIFY
                   didLastICloudRetryFailChanged)

public:
    /// `opener` and `time` must outlive the object. `reading` is that of the session until
    /// `readHistory`.
    AppStorageController(AppModelContainer& opener, AppModelContainer::Result result,
                         TimeFollower& time,
                         StoreSession::Reading reading = StoreSession::Reading::atOnce,
                         QObject* parent = nullptr);
    ~AppStorageController() override;

    [[nodiscard]] const AppModelContainer::Result& result() const { return result_; }
    [[nodiscard]] PersistenceMode mode() const { return result_.mode; }
    [[nodiscard]] PersistenceModes::Mode qmlMode() const { return PersistenceModes::of(mode()); }
    [[nodiscard]] bool hasStore() const { return result_.container != nullptr; }
    [[nodiscard]] bool isRetryingICloud() const { return isRetryingICloud_; }
    [[nodiscard]] bool didLastICloudRetryFail() const { return didLastICloudRetryFail_; }

    /// The session on the open store, or nothing when no store is open.
    [[nodiscard]] StoreSession* session() const { return session_.get(); }

    /// Has the open session read its history, which waited for this, and later ones at once.
    void readHistory();

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
    void adopt(AppModelContainer::Result result);
    void openSession();
    void letGo();
    void finishRetry(const std::function<void(bool)>& done);
    void setRetrying(bool retrying);
    void setLastRetryFailed(bool failed);

    struct DeferredDelete {
        void operator()(QObject* object) const { object->deleteLater(); }
    };

    AppModelContainer& opener_;
    TimeFollower& time_;
    StoreSession::Reading reading_;
    AppModelContainer::Result result_;
    std::unique_ptr<StoreSession, DeferredDelete> session_;
    bool isRetryingICloud_ = false;
    bool didLastICloudRetryFail_ = false;
};

} // namespace quillmere
