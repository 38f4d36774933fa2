#include "tests/Quillmere/shell/ShellFixture.h"

#include "Quillmere/shell/ContinuousCountdown.h"
#include "tests/Quillmere/support/QmlFixture.h"

#include <QtQml/QQmlEngine>

namespace quillmere {

namespace {

std::map<AppRoute, Screen> screens() {
    std::map<AppRoute, Screen> result;
    for (const AppRoute route : AppRoutes::all) {
        result[route] = {QUrl(QStringLiteral("qrc:/qt/qml/Quillmere/history/HistoryView.qml")),
                         [] { return std::make_unique<QObject>(); }};
    }
    return result;
}

} // namespace

ShellFixture::ShellFixture()
    : root_(routes_, screens()),
      widgetRefresh_(session(), appState(), {log(), {preferences(), widgets_}},
                     std::make_unique<ContinuousCountdown>()) {
    QDesktopServices::setUrlHandler(QStringLiteral("quillmere"), &routes_, "open");
}

ShellFixture::~ShellFixture() {
    QDesktopServices::unsetUrlHandler(QStringLiteral("quillmere"));
}

AppStorageController* ShellFixture::storageWithout(const QStringList& failing) {
    storage_.reset();
    opener_.failing.clear();
    for (const QString& attempt : failing) {
        opener_.failing.insert(attempt.toStdString());
    }
    storage_ = std::make_unique<AppStorageController>(container_, container_.make(), systemTime_);
    QQmlEngine::setObjectOwnership(storage_.get(), QQmlEngine::CppOwnership);
    return storage_.get();
}

void ShellFixture::startWork() {
    appState().work()->start(
        BackgroundWork::Kind::writing, "Working…", [this] { workEnds_.acquire(); },
        [](const std::exception* /*problem*/) {});
}

QString ShellFixture::storedRoute() {
    return QString::fromStdString(preferences().string("main.selectedRoute").value_or(""));
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<ShellFixture>();
}

} // namespace quillmere
