#include "Quillmere/shell/RouteItem.h"

#include "Quillmere/shell/RouteSelection.h"

namespace quillmere {

namespace {

QString text(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

RouteItem::RouteItem(AppRoute route, RouteSelection& selection)
    : QObject(&selection), route_(route), selection_(selection) {
    connect(&selection, &RouteSelection::selectedChanged, this, &RouteItem::selectedChanged);
}

QString RouteItem::rawValue() const {
    return text(quillmere::rawValue(route_));
}

QString RouteItem::title() const {
    return text(quillmere::title(route_));
}

QString RouteItem::systemImage() const {
    return text(quillmere::systemImage(route_));
}

QUrl RouteItem::url() const {
    return QUrl(text(quillmere::url(route_)));
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
