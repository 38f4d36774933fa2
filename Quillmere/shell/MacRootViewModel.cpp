#include "Quillmere/shell/MacRootViewModel.h"

#include <QtCore/QTimer>

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

// Its view is deleted when control returns to the event loop, and before that still looks at it.
void MacRootViewModel::leave() {
    if (QObject* old = screenModel_.release()) {
        old->setParent(this);
        QTimer::singleShot(0, old, &QObject::deleteLater);
    }
}

void MacRootViewModel::onSelectedChanged() {
    auto old = std::exchange(screenModel_, nullptr);
    emit screenChanged();
    if (old) {
        old.release()->deleteLater();
    }
}

} // namespace quillmere
