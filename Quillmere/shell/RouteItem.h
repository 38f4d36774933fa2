#pragma once

#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class RouteSelection;

/// One route as the sidebar and the Navigate menu list it.
class RouteItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("listed by RouteSelection")
    Q_PROPERTY(QString rawValue READ rawValue CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString systemImage READ systemImage CONSTANT)
    /// The link that leads to the route, from anywhere in the program or outside it.
    Q_PROPERTY(QUrl url READ url CONSTANT)
    /// Key that selects the route in the Navigate menu.
    Q_PROPERTY(QString shortcut READ shortcut CONSTANT)
    Q_PROPERTY(bool selected READ selected NOTIFY selectedChanged)

public:
    /// A child of the selection it is listed in.
    RouteItem(AppRoute route, RouteSelection& selection);

    [[nodiscard]] QString rawValue() const;
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString systemImage() const;
    [[nodiscard]] QUrl url() const;
    [[nodiscard]] QString shortcut() const;
    [[nodiscard]] bool selected() const;

    Q_INVOKABLE void select();

signals:
    void selectedChanged();

private:
    AppRoute route_;
    RouteSelection& selection_;
};

} // namespace quillmere
