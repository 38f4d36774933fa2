#pragma once

#include "Quillmere/app/InstanceService.h"
#include "Quillmere/app/QuillmereMacApp.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtDBus/QDBusConnection>

#include <optional>

namespace quillmere {

/// Makes the application when there is first something to show, for a program that the bus may have
/// started to perform an action only. Main thread.
class ApplicationOnDemand : public QObject {
    Q_OBJECT

public:
    /// Follows the calls that reach `instance`, which holds the name.
    ApplicationOnDemand(InstanceService& instance, const QDBusConnection& bus);

    /// Ends the program, with nothing to show for it, when all it was called for has been done or
    /// no call has come for a while. For a program that was started by the bus.
    void endWhenNotNeeded();

public slots:
    /// Takes a deep link, which shows when the application is brought forward.
    void open(const QUrl& url);
    /// Shows the main window or brings it forward. When it cannot it answers false, and ends a
    /// program whose event loop runs.
    bool activate(const QString& token);

private:
    QuillmereMacApp& application();
    void endIfNotNeeded();
    [[nodiscard]] bool isNeeded() const;

    InstanceService& instance_;
    QDBusConnection bus_;
    QTimer firstCallTimer_;
    std::optional<QuillmereMacApp> application_;
    bool isShown_ = false;
};

} // namespace quillmere
