#include "Quillmere/settings/SettingsViewModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/MenuBarDisplayMode.h"
#include "Quillmere/shell/PreferencesFollower.h"
#include "Quillmere/shell/QuillmereAppearance.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/records/AppConstants.h"

namespace quillmere {

namespace {

QString textOf(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Values>
QList<ChoiceListModel::Choice> choicesOf(const Values& values) {
    QList<ChoiceListModel::Choice> choices;
    for (const auto value : values) {
        choices.append({textOf(rawValue(value)), textOf(title(value))});
    }
    return choices;
}

} // namespace

SettingsViewModel::SettingsViewModel(StoreSession& session, const Services& services,
                                     QObject* parent)
    : QObject(parent),
      session_(session),
      services_(services),
      theme_(services.preferences, AppConstants::appearanceKey,
             choicesOf(QuillmereAppearances::all)),
      adjustmentTypes_(session, services.appState),
      launchAtLogin_(services.loginItem, services.appState),
      showsMenuBarExtra_(services.preferences, AppConstants::showMenuBarExtraKey, true),
      menuBarDisplayMode_(services.preferences, AppConstants::menuBarDisplayModeKey,
                          choicesOf(MenuBarDisplayModes::all)),
      closesWindowToMenuBar_(services.preferences, AppConstants::closeWindowToMenuBarKey, false),
      dataManagement_(session,
                      {services.appState, services.storage, services.folders, services.widgets}) {
    connect(&services.storage, &AppStorageController::resultChanged, this,
            &SettingsViewModel::storageChanged);
    connect(&services.storage, &AppStorageController::didLastICloudRetryFailChanged, this,
            &SettingsViewModel::storageChanged);
}

StorageStatus SettingsViewModel::storageStatus() const {
    return StorageStatus::of(services_.storage.mode());
}

bool SettingsViewModel::canRetryICloud() const {
    return services_.storage.mode() == PersistenceMode::localOnly;
}

bool SettingsViewModel::didLastICloudRetryFail() const {
    return services_.storage.didLastICloudRetryFail();
}

QUrl SettingsViewModel::supportURL() {
    return QUrl(textOf(AppConstants::supportURLString), QUrl::StrictMode);
}

QUrl SettingsViewModel::privacyURL() {
    return QUrl(textOf(AppConstants::privacyURLString), QUrl::StrictMode);
}

QString SettingsViewModel::supportHost() {
    return supportURL().host();
}

void SettingsViewModel::appear() {
    launchAtLogin_.refresh();
    platform::store::Context& context = session_.context();
    try {
        StorePreparation::prepare(context);
    } catch (const std::exception& error) {
        context.rollback();
        services_.appState.report(
            error, tr("Couldn't prepare settings"),
            tr("Some settings couldn't be saved. Please try reopening Quillmere."));
    }
}

void SettingsViewModel::retryICloud() {
    services_.storage.retryICloud();
}

} // namespace quillmere
