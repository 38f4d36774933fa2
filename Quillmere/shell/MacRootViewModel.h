#pragma once

#include "Quillmere/shell/RouteSelection.h"
#include "Quillmere/shell/Screen.h"
#include "QuillmereKit/navigation/AppRoute.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <memory>

namespace quillmere {

/// The main window's frame: the routes and the screen of the selected one. Belongs to a store
/// session like the screens it makes.
///
/// A screen's view model is made when its route is shown and given up when another one is: the old
/// view goes first, then its model (`deleteLater`).
class MacRootViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(quillmere::RouteSelection* selection READ selection CONSTANT)
    Q_PROPERTY(QUrl screen READ screen NOTIFY screenChanged)
    Q_PROPERTY(QObject* screenModel READ screenModel NOTIFY screenChanged)

public:
    /// `selection` must outlive the object; `screens` has one entry for each route.
    MacRootViewModel(RouteSelection& selection, std::map<AppRoute, Screen> screens,
                     QObject* parent = nullptr);
    ~MacRootViewModel() override;

    [[nodiscard]] RouteSelection* selection() const { return &selection_; }
    [[nodiscard]] QUrl screen() const;
    /// Made on the first call for a route.
    [[nodiscard]] QObject* screenModel();

    /// Gives the screen's model up because the frame goes: whoever comes back finds no form,
    /// question or chosen day of before.
    void leave();

signals:
    void screenChanged();

private:
    void onSelectedChanged();

    RouteSelection& selection_;
    std::map<AppRoute, Screen> screens_;
    std::unique_ptr<QObject> screenModel_;
};

} // namespace quillmere
