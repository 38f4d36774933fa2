#include "Quillmere/app/MainWindowModel.h"

#include "QuillmereKit/records/AppConstants.h"

#include <utility>

namespace quillmere {

MainWindowModel::MainWindowModel(AppStorageController& storage, AppearanceModel& appearance,
                                 const MainSceneModel::Application& application, QObject* parent)
    : QObject(parent), storage_(storage), appearance_(appearance), application_(application) {
    connect(&storage, &AppStorageController::sessionChanged, this,
            &MainWindowModel::onSessionChanged);
    connect(&storage, &AppStorageController::isRetryingICloudChanged, this,
            &MainWindowModel::contentChanged);
    onSessionChanged();
}

MainWindowModel::~MainWindowModel() = default;

QUrl MainWindowModel::supportURL() {
    constexpr auto text = AppConstants::supportURLString;
    return QUrl(QString::fromUtf8(text.data(), text.size()), QUrl::StrictMode);
}

MainWindowModel::Content MainWindowModel::content() const {
    if (storage_.isRetryingICloud()) {
        return Reconnecting;
    }
    return scene_ ? Scene : Unavailable;
}

// The views go with the signal (a `Loader` queues their deletion), then the models, then the
// session.
void MainWindowModel::onSessionChanged() {
    auto old = std::exchange(scene_, nullptr);
    if (StoreSession* session = storage_.session()) {
        scene_ = std::make_unique<MainSceneModel>(*session, application_);
    }
    emit contentChanged();
    if (old) {
        old.release()->deleteLater();
    }
}

} // namespace quillmere
