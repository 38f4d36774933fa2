#include "Quillmere/settings/LaunchAtLogin.h"

#include "Platform/autostart/LoginItemsSettings.h"
#include "Quillmere/shell/AppState.h"

#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

#include <utility>

namespace quillmere {

using Status = platform::LoginItem::Status;

LaunchAtLogin::LaunchAtLogin(platform::LoginItem& item, AppState& appState, QObject* parent)
    : QObject(parent), item_(item), appState_(appState) {
}

bool LaunchAtLogin::launchesAtLogin() const {
    return status_ != Status::notRegistered;
}

bool LaunchAtLogin::requiresApproval() const {
    return status_ == Status::requiresApproval;
}

void LaunchAtLogin::refresh() {
    const Status status = item_.status();
    if (std::exchange(status_, status) != status) {
        emit changed();
    }
}

void LaunchAtLogin::toggle() {
    try {
        if (launchesAtLogin()) {
            item_.remove();
        } else {
            item_.add();
        }
    } catch (const std::exception& error) {
        appState_.report(error, tr("Couldn't update launch at login"),
                         tr("Check Login Items in System Settings, then try again."));
    }
    refresh();
}

void LaunchAtLogin::openSettings() const {
    const auto command = platform::loginItemsSettings(qgetenv("XDG_CURRENT_DESKTOP").toStdString(),
                                                      qgetenv("PATH").toStdString());
    if (!command) {
        const std::string folder = item_.folder().string();
        QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(folder)));
        return;
    }
    QStringList arguments;
    for (const std::string& argument : *command) {
        arguments.append(QString::fromStdString(argument));
    }
    const QString program = arguments.takeFirst();
    QProcess::startDetached(program, arguments);
}

} // namespace quillmere
