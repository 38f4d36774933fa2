#include "Quillmere/shell/AppState.h"

namespace quillmere {

AppState::AppState(platform::LogSink& log, QObject* parent)
    : QObject(parent), log_(log, "dev.vantor.quillmere", "UserOperation") {
}

void AppState::report(const std::exception& error, const QString& title, const QString& message) {
    log_.write(platform::LogLevel::error, title.toStdString() + ": ",
               platform::PrivateText{error.what()});
    issue_ = AppIssue{QUuid::createUuid(), title, message};
    emit issueChanged();
}

void AppState::dismissIssue() {
    if (issue_) {
        issue_.reset();
        emit issueChanged();
    }
}

bool AppState::claimWidgetRefresh(platform::Instant at, double minimumInterval) {
    const bool granted = widgetRefreshThrottle_.claim(at, minimumInterval);
    emit widgetRefreshThrottleChanged();
    return granted;
}

} // namespace quillmere
