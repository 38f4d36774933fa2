#pragma once

#include "Platform/log/Log.h"
#include "Quillmere/shell/BackgroundWork.h"
#include "QuillmereKit/widget/WidgetRefreshThrottle.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUuid>
#include <QtQml/qqmlregistration.h>

#include <exception>
#include <optional>

namespace quillmere {

/// A failure as the user is told of it. Every report makes a new one, so two with the same texts
/// are still two alerts.
struct AppIssue {
    Q_GADGET
    QML_VALUE_TYPE(appIssue)
    Q_PROPERTY(QUuid id MEMBER id CONSTANT)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString message MEMBER message CONSTANT)

public:
    QUuid id;
    QString title;
    QString message;
};

/// What every screen shares: the issue being shown, the long work under way and the widget
/// throttle. One per process, main thread.
class AppState : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the application")
    Q_PROPERTY(bool hasIssue READ hasIssue NOTIFY issueChanged)
    Q_PROPERTY(quillmere::AppIssue issue READ issue NOTIFY issueChanged)
    Q_PROPERTY(quillmere::BackgroundWork* work READ work CONSTANT)

public:
    /// `log` must outlive the object.
    explicit AppState(platform::LogSink& log, QObject* parent = nullptr);

    /// Logs the error under its title and shows the issue, replacing any that is still showing. The
    /// error's own words go to the log only.
    void report(const std::exception& error, const QString& title, const QString& message);

    [[nodiscard]] bool hasIssue() const { return issue_.has_value(); }
    [[nodiscard]] AppIssue issue() const { return issue_.value_or(AppIssue{}); }

    /// Called by the alert when the user dismisses it; nothing else clears an issue.
    Q_INVOKABLE void dismissIssue();

    [[nodiscard]] BackgroundWork* work() { return &work_; }

    /// Claims the right to rewrite the widget snapshot; see `WidgetRefreshThrottle::claim`.
    bool claimWidgetRefresh(platform::Instant at, double minimumInterval);

signals:
    void issueChanged();
    void widgetRefreshThrottleChanged();

private:
    platform::Log log_;
    std::optional<AppIssue> issue_;
    WidgetRefreshThrottle widgetRefreshThrottle_;
    BackgroundWork work_;
};

} // namespace quillmere
