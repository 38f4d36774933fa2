#include "Quillmere/menubar/TrayNotifierHost.h"

#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusVariant>

namespace quillmere {

namespace {

const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString path = QStringLiteral("/StatusNotifierWatcher");
const QString& interface = service;

QDBusMessage question() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    message << interface << QStringLiteral("IsStatusNotifierHostRegistered");
    message.setAutoStartService(false);
    return message;
}

} // namespace

TrayNotifierHost::TrayNotifierHost(QDBusConnection bus, QObject* parent)
    : QObject(parent),
      bus_(std::move(bus)),
      watcher_(service, bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    connect(&watcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            &TrayNotifierHost::onOwnerChanged);
    bus_.connect({}, QStringLiteral("/org/freedesktop/DBus/Local"),
                 QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                 SLOT(ask()));
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect(service, path, interface, QLatin1String(signal), this, SLOT(ask()));
    }
    ask();
}

// A new owner knows nothing of the items that the old one had, also when it follows at once.
void TrayNotifierHost::onOwnerChanged(const QString& /*name*/, const QString& oldOwner) {
    if (!oldOwner.isEmpty()) {
        take(false, false);
    }
    ask();
}

void TrayNotifierHost::ask() {
    // Qt answers nothing to a call that it cannot send.
    if (!bus_.isConnected()) {
        QMetaObject::invokeMethod(
            this, [this] { take(false, false); }, Qt::QueuedConnection);
        return;
    }
    auto* call = new QDBusPendingCallWatcher(bus_.asyncCall(question()), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        const QDBusPendingReply<QDBusVariant> reply = *call;
        take(reply.isValid(), reply.isValid() && reply.value().variant().toBool());
        call->deleteLater();
    });
}

void TrayNotifierHost::take(bool isExpected, bool isPresent) {
    const bool isNews = !isKnown_ || isExpected != isExpected_ || isPresent != isPresent_;
    isKnown_ = true;
    isExpected_ = isExpected;
    isPresent_ = isPresent;
    if (isNews) {
        emit changed();
    }
}

} // namespace quillmere
