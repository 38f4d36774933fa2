#include "Quillmere/shell/PortalDesktopSettings.h"

#include <QtCore/QEvent>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

namespace quillmere {

namespace {

using SettingsBySpace = QMap<QString, QVariantMap>;

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");

bool isPaletteDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

bool overridden(const char* variable, bool value) {
    const QByteArray text = qgetenv(variable);
    return text.isEmpty() ? value : text != "0";
}

} // namespace

PortalDesktopSettings::PortalDesktopSettings(QDBusConnection bus, QObject* parent)
    : DesktopSettings(parent),
      bus_(std::move(bus)),
      firstAnswer_(readAll(firstAnswerMilliseconds)) {
    qDBusRegisterMetaType<SettingsBySpace>();
    bus_.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                 SLOT(onSettingChanged(QString, QString, QDBusVariant)));
    qGuiApp->installEventFilter(this);
}

QDBusPendingCall PortalDesktopSettings::readAll(int timeoutMilliseconds) {
    QDBusMessage message =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    message << QStringList{QStringLiteral("org.freedesktop.appearance"),
                           QStringLiteral("org.gnome.desktop.interface"),
                           QStringLiteral("org.gnome.desktop.a11y.interface")};
    return bus_.asyncCall(message, timeoutMilliseconds);
}

void PortalDesktopSettings::waitForFirstAnswer() {
    firstAnswer_.waitForFinished();
    if (firstAnswer_.isError() && firstAnswer_.error().type() == QDBusError::NoReply) {
        askAgain();
    } else {
        takeAnswer(firstAnswer_);
    }
}

// The portal may still be starting; nobody waits for it this time.
void PortalDesktopSettings::askAgain() {
    constexpr int libraryDefault = -1;
    auto* watcher = new QDBusPendingCallWatcher(readAll(libraryDefault), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        takeAnswer(*watcher);
        watcher->deleteLater();
    });
}

void PortalDesktopSettings::takeAnswer(const QDBusPendingCall& call) {
    const QDBusPendingReply<SettingsBySpace> reply = call;
    if (reply.isError()) {
        return;
    }
    const DesktopLook before = look();
    const SettingsBySpace spaces = reply.value();
    for (auto space = spaces.cbegin(); space != spaces.cend(); ++space) {
        for (auto setting = space->cbegin(); setting != space->cend(); ++setting) {
            portal_.take(space.key(), setting.key(), setting.value());
        }
    }
    if (look() != before) {
        emit lookChanged();
    }
}

void PortalDesktopSettings::onSettingChanged(const QString& space, const QString& key,
                                             const QDBusVariant& value) {
    const DesktopLook before = look();
    portal_.take(space, key, value.variant());
    if (look() != before) {
        emit lookChanged();
    }
}

bool PortalDesktopSettings::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange && watched == qGuiApp) {
        emit lookChanged();
    }
    return false;
}

DesktopLook PortalDesktopSettings::look() const {
    DesktopLook result = portal_;
    result.prefersDark = portal_.prefersDark.value_or(isPaletteDark());
    result.highContrast = overridden("QUILLMERE_HIGH_CONTRAST", portal_.highContrast);
    result.reducedMotion = overridden("QUILLMERE_REDUCED_MOTION", portal_.reducedMotion);
    return result;
}

} // namespace quillmere
