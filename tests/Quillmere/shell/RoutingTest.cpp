#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/shell/MacRootViewModel.h"
#include "Quillmere/shell/RouteSelection.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

#include <gtest/gtest.h>

namespace quillmere {
namespace {

constexpr const char* key = "main.selectedRoute";

struct StoredRow {
    const char* stored;
    AppRoute shown;
};

TEST(RouteSelectionTest, StartsWithTheStoredRouteOrTheOverview) {
    for (const StoredRow row :
         {StoredRow{"history", AppRoute::history}, StoredRow{"", AppRoute::overview},
          StoredRow{"calendar", AppRoute::overview}, StoredRow{"Settings", AppRoute::overview}}) {
        SCOPED_TRACE(row.stored);
        platform::MemoryPreferences preferences;
        preferences.setString(key, row.stored);
        EXPECT_EQ(RouteSelection(preferences).selected(), row.shown);
    }
}

struct LinkRow {
    const char* url;
    const char* stored; ///< afterwards; the selection starts at "history"
};

TEST(RouteSelectionTest, TakesDeepLinks) {
    for (const LinkRow row :
         {LinkRow{"quillmere://settings", "settings"}, LinkRow{"QuillMere://REPORTS", "reports"},
          LinkRow{"quillmere://overview/any?q=1#f", "overview"}, LinkRow{"quillmere:", "history"},
          LinkRow{"quillmere:overview", "history"}, LinkRow{"other://overview", "history"},
          LinkRow{"quillmere://unknown", "history"}, LinkRow{"", "history"}}) {
        SCOPED_TRACE(row.url);
        platform::MemoryPreferences preferences;
        preferences.setString(key, "history");
        RouteSelection selection(preferences);
        selection.open(QUrl(QString::fromUtf8(row.url)));
        EXPECT_EQ(preferences.string(key), row.stored);
        EXPECT_EQ(selection.selectedItem()->rawValue().toStdString(), row.stored);
    }
}

TEST(MacRootViewModelTest, AScreensModelLivesAsLongAsItsRouteIsShown) {
    platform::MemoryPreferences preferences;
    RouteSelection selection(preferences);
    std::map<AppRoute, Screen> screens;
    for (const AppRoute route : AppRoutes::all) {
        screens[route] = {QUrl(), [] { return std::make_unique<QObject>(); }};
    }
    MacRootViewModel root(selection, screens);

    const QPointer<QObject> overview = root.screenModel();
    EXPECT_EQ(root.screenModel(), overview);
    bool wasAliveForItsView = false;
    QObject::connect(&root, &MacRootViewModel::screenChanged,
                     [&] { wasAliveForItsView = !overview.isNull(); });
    selection.select(AppRoute::reports);
    EXPECT_TRUE(wasAliveForItsView);
    EXPECT_NE(root.screenModel(), overview);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(overview.isNull());
}

} // namespace
} // namespace quillmere
