#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusServiceWatcher>

namespace quillmere {

/// Whether the desktop shows status notifier items (the XDG StatusNotifierItem protocol as
/// desktops speak it, interface org.kde.StatusNotifierWatcher), now and whenever that changes: a
/// panel may start after the program, at login, and be restarted. Main thread.
class TrayNotifierHost : public QObject {
    Q_OBJECT

public:
    /// Asks at once; the answer arrives as a change.
    explicit TrayNotifierHost(QDBusConnection bus, QObject* parent = nullptr);

    /// Something shows items.
    [[nodiscard]] bool isPresent() const { return isPresent_; }
    /// Something collects items, so that a host is here or likely to come.
    [[nodiscard]] bool isExpected() const { return isExpected_; }
    /// The desktop has answered.
    [[nodiscard]] bool isKnown() const { return isKnown_; }

signals:
    void changed();

private slots:
    void ask();

private:
    void onOwnerChanged(const QString& name, const QString& oldOwner);
    void take(bool isExpected, bool isPresent);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    bool isKnown_ = false;
    bool isExpected_ = false;
    bool isPresent_ = false;
};

} // namespace quillmere
