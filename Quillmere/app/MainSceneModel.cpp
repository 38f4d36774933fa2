#include "Quillmere/app/MainSceneModel.h"

#include "Quillmere/dashboard/DashboardViewModel.h"
#include "Quillmere/history/HistoryViewModel.h"
#include "Quillmere/reports/ReportsViewModel.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/ContinuousCountdown.h"
#include "Quillmere/shell/StoreSession.h"

#include <map>
#include <memory>

namespace quillmere {

namespace {

std::map<AppRoute, Screen> screensOf(StoreSession& session,
                                     const MainSceneModel::Application& application) {
    const auto makeDashboard = [&session, application] {
        return std::make_unique<DashboardViewModel>(session, application.appState,
                                                    application.preferences,
                                                    std::make_unique<ContinuousCountdown>());
    };
    const auto makeHistory = [&session, application] {
        return std::make_unique<HistoryViewModel>(session, application.appState,
                                                  application.settings.storage.mode());
    };
    const auto makeSettings = [&session, application] {
        return std::make_unique<SettingsViewModel>(session, application.settings);
    };
    const auto makeReports = [&session, application] {
        return std::make_unique<ReportsViewModel>(session, application.appState,
                                                  application.settings.folders);
    };
    return {
        {AppRoute::overview,
         {QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/dashboard/DashboardView.qml")),
          makeDashboard}},
        {AppRoute::history,
         {QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/history/HistoryView.qml")), makeHistory}},
        {AppRoute::reports,
         {QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/reports/ReportsView.qml")), makeReports}},
        {AppRoute::settings,
         {QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/settings/SettingsView.qml")), makeSettings}},
    };
}

} // namespace

MainSceneModel::MainSceneModel(StoreSession& session, const Application& application,
                               QObject* parent)
    : QObject(parent),
      gate_(session, application.appState, application.preferences, application.prototype),
      root_(application.routes, screensOf(session, application)) {
    connect(&gate_, &OnboardingGateViewModel::contentChanged, this, [this] {
        if (gate_.content() != OnboardingGateViewModel::Screens) {
            root_.leave();
        }
    });
}

} // namespace quillmere
