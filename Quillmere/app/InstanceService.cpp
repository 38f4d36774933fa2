#include "Quillmere/app/InstanceService.h"

#include "Quillmere/actions/BusNames.h"

#include <QtCore/QCoreApplication>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusReply>

#include <utility>

namespace quillmere {

namespace {

const QString service = QLatin1String(BusNames::application);
const QString path = QLatin1String(BusNames::applicationPath);
const QString interface = QStringLiteral("org.freedesktop.Application");

} // namespace

InstanceService::InstanceService(QDBusConnection bus, QObject* parent)
    : QObject(parent), bus_(std::move(bus)) {
}

InstanceService::Claim InstanceService::claim() {
    if (!bus_.isConnected()) {
        return Claim::alone;
    }
    // The object first: a call may follow the name at once.
    bus_.registerObject(path, this, QDBusConnection::ExportScriptableSlots);
    const auto reply =
        bus_.interface()->registerService(service, QDBusConnectionInterface::DontQueueService,
                                          QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid()) {
        return Claim::alone;
    }
    return reply.value() == QDBusConnectionInterface::ServiceRegistered ? Claim::first
                                                                        : Claim::second;
}

void InstanceService::release() {
    bus_.interface()->unregisterService(service);
    // What the bus sent before it answered is waiting.
    QCoreApplication::sendPostedEvents(this);
}

bool InstanceService::handOver(const QList<QUrl>& urls, const StartRequest& request) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        service, path, interface,
        urls.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open"));
    if (!urls.isEmpty()) {
        message << QUrl::toStringList(urls);
    }
    message << request.platformData;
    return bus_.call(message).type() == QDBusMessage::ReplyMessage;
}

void InstanceService::Activate(const QVariantMap& platformData) {
    emit activated(activationToken(platformData));
}

void InstanceService::Open(const QStringList& uris, const QVariantMap& platformData) {
    for (const QString& uri : uris) {
        emit opened(QUrl(uri));
    }
    emit activated(activationToken(platformData));
}

void InstanceService::ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                                     const QVariantMap& /*platformData*/) {
    QDBusMessage shortcut = QDBusMessage::createMethodCall(
        QLatin1String(BusNames::service), QLatin1String(BusNames::actionsPath),
        QLatin1String(BusNames::actionsInterface), QStringLiteral("RunShortcut"));
    answerWhenPerformed(bus_.asyncCall(shortcut << name));
}

void InstanceService::answerWhenPerformed(const QDBusPendingCall& call) {
    setDelayedReply(true);
    ++performing_;
    auto* watcher = new QDBusPendingCallWatcher(call, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, watcher, request = message()] {
                bus_.send(watcher->isError() ? request.createErrorReply(watcher->error())
                                             : request.createReply());
                watcher->deleteLater();
                --performing_;
                emit performed();
            });
}

} // namespace quillmere
