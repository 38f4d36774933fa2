#pragma once

#include "Platform/preferences/Preferences.h"
#include "Quillmere/shell/RouteItem.h"
#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Which of the four routes the main window shows, kept under "main.selectedRoute". One per
/// process, main thread.
class RouteSelection : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    /// The routes in their order.
    Q_PROPERTY(QQmlListProperty<quillmere::RouteItem> routes READ routes CONSTANT)
    Q_PROPERTY(quillmere::RouteItem* selectedItem READ selectedItem NOTIFY selectedChanged)

public:
    /// `preferences` is the standard domain and must outlive the object.
    explicit RouteSelection(platform::Preferences& preferences, QObject* parent = nullptr);

    /// `overview` when what is stored names no route.
    [[nodiscard]] AppRoute selected() const { return selected_; }
    [[nodiscard]] RouteItem* selectedItem() const;
    [[nodiscard]] QQmlListProperty<RouteItem> routes();

    /// A choice that cannot be stored still holds until the program ends.
    void select(AppRoute route);

public slots:
    /// Takes a deep link. One that names no route changes nothing.
    void open(const QUrl& url);

signals:
    void selectedChanged();

private:
    platform::Preferences& preferences_;
    AppRoute selected_;
    QList<RouteItem*> routes_;
};

} // namespace quillmere
