#pragma once

#include "Quillmere/app/MainSceneModel.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/AppStorageController.h"
#include "Quillmere/shell/AppearanceModel.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillmere {

/// The one object the main window is given: what it shows at the moment, and what everything in it
/// draws on. Main thread.
class MainWindowModel : public QObject {
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
    /// Null unless the content is `Scene`.
    Q_PROPERTY(quillmere::MainSceneModel* scene READ scene NOTIFY contentChanged)

public:
    enum Content {
        Reconnecting, ///< private sync is being retried
        Unavailable,  ///< no store is open
        Scene,        ///< the screens, on an open store
    };
    Q_ENUM(Content)

    /// Everything given must outlive the object.
    MainWindowModel(AppStorageController& storage, AppearanceModel& appearance,
                    const MainSceneModel::Application& application, QObject* parent = nullptr);
    ~MainWindowModel() override;

    [[nodiscard]] AppState* appState() const { return &application_.appState; }
    [[nodiscard]] AppStorageController* storage() const { return &storage_; }
    [[nodiscard]] AppearanceModel* appearance() const { return &appearance_; }
    [[nodiscard]] RouteSelection* routes() const { return &application_.routes; }
    [[nodiscard]] static QUrl supportURL();
    [[nodiscard]] Content content() const;
    [[nodiscard]] MainSceneModel* scene() const { return scene_.get(); }

signals:
    /// The views of what was shown before must be let go at once.
    void contentChanged();

private:
    void onSessionChanged();

    AppStorageController& storage_;
    AppearanceModel& appearance_;
    MainSceneModel::Application application_;
    std::unique_ptr<MainSceneModel> scene_;
};

} // namespace quillmere
