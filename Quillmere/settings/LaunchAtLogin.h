#pragma once

#include "Platform/autostart/LoginItem.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class AppState;

/// Whether the desktop starts the program at login, as last read: by `refresh`, and after each
/// change made here. Main thread.
class LaunchAtLogin : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    /// True also while the user's approval is missing.
    Q_PROPERTY(bool launchesAtLogin READ launchesAtLogin NOTIFY changed)
    Q_PROPERTY(bool requiresApproval READ requiresApproval NOTIFY changed)

public:
    /// Both must outlive the object. Reads nothing yet.
    LaunchAtLogin(platform::LoginItem& item, AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] bool launchesAtLogin() const;
    [[nodiscard]] bool requiresApproval() const;

    /// Reads the state.
    void refresh();
    /// Switches to the opposite of what is shown; a failure is reported as an issue.
    Q_INVOKABLE void toggle();
    /// Opens the desktop's page of login items, or the folder of their entries where there is none.
    Q_INVOKABLE void openSettings() const;

signals:
    void changed();

private:
    platform::LoginItem& item_;
    AppState& appState_;
    platform::LoginItem::Status status_ = platform::LoginItem::Status::notRegistered;
};

} // namespace quillmere
