#include "Quillmere/shell/MacRootViewModel.h"

#include <utility>

namespace quillmere {

MacRootViewModel::MacRootViewModel(RouteSelection& selection, std::map<AppRoute, Screen> screens,
                                   QObject* parent)
    : QObject(parent), selection_(selection), screens_(std::move(screens)) {
    connect(&selection, &RouteSelection::selectedChanged, this,
            &MacRootViewModel::onSelectedChanged);
}

MacRootViewModel::~MacRootViewModel() = default;

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
