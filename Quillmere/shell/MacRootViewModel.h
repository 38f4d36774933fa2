#pragma once

#include "Quillmere/shell/RouteItem.h"
#include "Quillmere/shell/Screen.h"
#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/QQmlListProperty>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <memory>

namespace quillmere {

class RouteSelection;

/// The main window's frame: the four routes and the screen of the selected one. Belongs to a store
/// session like the screens it makes.
///
/// A screen's view model is made when its route is shown and given up when another one is: the old
/// view goes first, then its model (`deleteLater`).
class MacRootViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(QQmlListProperty<quillmere::RouteItem> routes READ routes CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY screenChanged)
    Q_PROPERTY(QUrl screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(QObject* screenModel READ screenModel NOTIFY screenChanged)

public:
    /// `selection` must outlive the object; `screens` has one entry for each route.
    MacRootViewModel(RouteSelection& selection, std::map<AppRoute, Screen> screens,
                     QObject* parent = nullptr);
    ~MacRootViewModel() override;

    [[nodiscard]] QQmlListProperty<RouteItem> routes();
    [[nodiscard]] QString title() const;
    [[nodiscard]] QUrl screen() const;
    /// Made on the first call for a route.
    [[nodiscard]] QObject* screenModel();

signals:
    void screenChanged();

private:
    void onSelectedChanged();

    RouteSelection& selection_;
    std::map<AppRoute, Screen> screens_;
    QList<RouteItem*> routes_;
    std::unique_ptr<QObject> screenModel_;
};

} // namespace quillmere
