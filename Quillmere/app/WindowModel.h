#pragma once

#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/AppearanceModel.h"
#include "Quillmere/shell/RouteSelection.h"
#include "Quillmere/widget/WidgetRefreshObserverViewModel.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>

namespace quillmere {

/// The one object a window is given: what it shows at the moment, and what everything in it draws
/// on. Main thread.
class WindowModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::AppState* appState READ appState CONSTANT)
    Q_PROPERTY(quillmere::AppStorageController* storage READ storage CONSTANT)
    Q_PROPERTY(quillmere::AppearanceModel* appearance READ appearance CONSTANT)
    Q_PROPERTY(quillmere::RouteSelection* routes READ routes CONSTANT)
    /// The support page; empty when its address is none.
    Q_PROPERTY(QUrl supportURL READ supportURL CONSTANT)
    Q_PROPERTY(Content content READ content NOTIFY contentChanged)
    /// The view model of the window's content on an open store. Null unless the content is `Scene`.
    Q_PROPERTY(QObject* scene READ scene NOTIFY contentChanged)
    /// What keeps the widget snapshot current on behalf of this window. Null where the scene is.
    Q_PROPERTY(quillmere::WidgetRefreshObserverViewModel* widgetRefresh READ widgetRefresh NOTIFY
                   contentChanged)

public:
    enum Content {
        Reconnecting, ///< private sync is being retried
        Unavailable,  ///< no store is open
        Scene,        ///< the screens, on an open store
    };
    Q_ENUM(Content)

    /// What every window shares, for the life of the process.
    struct Application {
        AppState& appState;
        AppStorageController& storage;
        AppearanceModel& appearance;
        RouteSelection& routes;
        WidgetRefreshObserverViewModel::Services widget;
    };
    using MakeScene = std::function<std::unique_ptr<QObject>(StoreSession&)>;

    /// `makeScene` is asked once a session. Everything given must outlive the object.
    WindowModel(const Application& application, MakeScene makeScene, QObject* parent = nullptr);
    ~WindowModel() override;

    [[nodiscard]] AppState* appState() const { return &application_.appState; }
    [[nodiscard]] AppStorageController* storage() const { return &application_.storage; }
    [[nodiscard]] AppearanceModel* appearance() const { return &application_.appearance; }
    [[nodiscard]] RouteSelection* routes() const { return &application_.routes; }
    [[nodiscard]] static QUrl supportURL();
    [[nodiscard]] Content content() const;
    [[nodiscard]] QObject* scene() const { return scene_.get(); }
    [[nodiscard]] WidgetRefreshObserverViewModel* widgetRefresh() const { return widgetRefresh_; }

signals:
    /// The views of what was shown before must be let go at once.
    void contentChanged();
    /// The user wants the settings window.
    void settingsRequested();

private:
    void onSessionChanged();

    Application application_;
    MakeScene makeScene_;
    std::unique_ptr<QObject> scene_;
    WidgetRefreshObserverViewModel* widgetRefresh_ = nullptr; ///< child of the scene
};

} // namespace quillmere
