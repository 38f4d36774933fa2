#include "Quillmere/shell/MacRootViewModel.h"

#include "Quillmere/shell/RouteSelection.h"

#include <utility>

namespace quillmere {

MacRootViewModel::MacRootViewModel(RouteSelection& selection, std::map<AppRoute, Screen> screens,
                                   QObject* parent)
    : QObject(parent), selection_(selection), screens_(std::move(screens)) {
    for (const AppRoute route : AppRoutes::all) {
        routes_.append(new RouteItem(route, selection, this));
    }
    connect(&selection, &RouteSelection::selectedChanged, this,
            &MacRootViewModel::onSelectedChanged);
}

MacRootViewModel::~MacRootViewModel() = default;

QQmlListProperty<RouteItem> MacRootViewModel::routes() {
    return {this, &routes_};
}

QString MacRootViewModel::title() const {
    return routes_.at(static_cast<qsizetype>(selection_.selected()))->title();
}

QUrl MacRootViewModel::screen() const {
    return screens_.at(selection_.selected()).view;
}

QObject* MacRootViewModel::screenModel() {
    if (!screenModel_) {
        screenModel_ = screens_.at(selection_.selected()).makeModel();
    }
    return screenModel_.get();
}

void MacRootViewModel::onSelectedChanged() {
    auto old = std::exchange(screenModel_, nullptr);
    emit screenChanged();
    if (old) {
        old.release()->deleteLater();
    }
}

} // namespace quillmere
