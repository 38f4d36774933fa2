#include "Quillmere/app/WindowModel.h"

#include "Quillmere/shell/ContinuousCountdown.h"
#include "QuillmereKit/records/AppConstants.h"

#include <utility>

namespace quillmere {

WindowModel::WindowModel(const Application& application, MakeScene makeScene, QObject* parent)
    : QObject(parent), application_(application), makeScene_(std::move(makeScene)) {
    const AppStorageController& storage = application.storage;
    connect(&storage, &AppStorageController::sessionChanged, this, &WindowModel::onSessionChanged);
    connect(&storage, &AppStorageController::isRetryingICloudChanged, this,
            &WindowModel::contentChanged);
    onSessionChanged();
}

WindowModel::~WindowModel() = default;

QUrl WindowModel::supportURL() {
    constexpr auto text = AppConstants::supportURLString;
    return QUrl(QString::fromUtf8(text.data(), text.size()), QUrl::StrictMode);
}

WindowModel::Content WindowModel::content() const {
    if (application_.storage.isRetryingICloud()) {
        return Reconnecting;
    }
    return scene_ ? Scene : Unavailable;
}

// The views go with the signal (a `Loader` queues their deletion), then the models, then the
// session.
void WindowModel::onSessionChanged() {
    auto old = std::exchange(scene_, nullptr);
    widgetRefresh_ = nullptr;
    if (StoreSession* session = application_.storage.session()) {
        scene_ = makeScene_(*session);
        widgetRefresh_ = new WidgetRefreshObserverViewModel(
            *session, application_.appState, application_.widget,
            std::make_unique<ContinuousCountdown>(), scene_.get());
    }
    emit contentChanged();
    if (old) {
        old.release()->deleteLater();
    }
}

} // namespace quillmere
