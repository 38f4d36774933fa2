#include "Quillmere/shell/RouteSelection.h"

#include <utility>

namespace quillmere {

namespace {

constexpr std::string_view selectedRouteKey = "main.selectedRoute";

AppRoute storedRoute(const platform::Preferences& preferences) {
    const auto rawValue = preferences.string(selectedRouteKey);
    return AppRoutes::fromRawValue(rawValue.value_or("")).value_or(AppRoute::overview);
}

} // namespace

RouteSelection::RouteSelection(platform::Preferences& preferences, QObject* parent)
    : QObject(parent), preferences_(preferences), selected_(storedRoute(preferences)) {
    for (const AppRoute route : AppRoutes::all) {
        routes_.append(new RouteItem(route, *this));
    }
}

RouteItem* RouteSelection::selectedItem() const {
    return routes_.at(static_cast<qsizetype>(selected_));
}

QQmlListProperty<RouteItem> RouteSelection::routes() {
    return {this, &routes_};
}

void RouteSelection::select(AppRoute route) {
    if (route == selected_) {
        return;
    }
    selected_ = route;
    preferences_.setString(selectedRouteKey, rawValue(route));
    emit selectedChanged();
}

void RouteSelection::setHeld(bool isHeld) {
    isHeld_ = isHeld;
    if (!isHeld_ && waiting_) {
        select(*std::exchange(waiting_, std::nullopt));
    }
}

void RouteSelection::open(const QUrl& url) {
    const auto route = AppRoutes::fromURL(url.toString(QUrl::FullyEncoded).toStdString());
    if (route && isHeld_) {
        waiting_ = route;
    } else if (route) {
        select(*route);
    }
}

} // namespace quillmere
