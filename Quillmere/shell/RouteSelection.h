#pragma once

#include "Platform/preferences/Preferences.h"
#include "Quillmere/shell/RouteItem.h"
#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

#include <optional>

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
    /// The window shows something over its screen. A link waits until that is closed, because what
    /// is typed there would be lost.
    Q_PROPERTY(bool held READ isHeld WRITE setHeld)

public:
    /// `preferences` is the standard domain and must outlive the object.
    explicit RouteSelection(platform::Preferences& preferences, QObject* parent = nullptr);

    /// `overview` when what is stored names no route.
    [[nodiscard]] AppRoute selected() const { return selected_; }
    [[nodiscard]] RouteItem* selectedItem() const;
    [[nodiscard]] QQmlListProperty<RouteItem> routes();

    /// A choice that cannot be stored still holds until the program ends.
    void select(AppRoute route);

    [[nodiscard]] bool isHeld() const { return isHeld_; }
    void setHeld(bool isHeld);

public slots:
    /// Takes a deep link; of several that have to wait the last one counts. One that names no route
    /// changes nothing.
    void open(const QUrl& url);

signals:
    void selectedChanged();

private:
    platform::Preferences& preferences_;
    AppRoute selected_;
    bool isHeld_ = false;
    std::optional<AppRoute> waiting_;
    QList<RouteItem*> routes_;
};

} // namespace quillmere
