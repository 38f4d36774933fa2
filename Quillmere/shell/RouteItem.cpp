#include "Quillmere/shell/RouteItem.h"

#include "Quillmere/shell/RouteSelection.h"

namespace quillmere {

RouteItem::RouteItem(AppRoute route, RouteSelection& selection)
    : QObject(&selection), route_(route), selection_(selection) {
    connect(&selection, &RouteSelection::selectedChanged, this, &RouteItem::selectedChanged);
}

QString RouteItem::rawValue() const {
    return QString::fromUtf8(quillmere::rawValue(route_));
}

QString RouteItem::title() const {
    return QString::fromUtf8(quillmere::title(route_));
}

QString RouteItem::systemImage() const {
    return QString::fromUtf8(quillmere::systemImage(route_));
}

QUrl RouteItem::url() const {
    return QUrl(QString::fromUtf8(quillmere::url(route_)));
}

QString RouteItem::shortcut() const {
    return QStringLiteral("Ctrl+%1").arg(static_cast<int>(route_) + 1);
}

bool RouteItem::selected() const {
    return selection_.selected() == route_;
}

void RouteItem::select() {
    selection_.select(route_);
}

} // namespace quillmere
