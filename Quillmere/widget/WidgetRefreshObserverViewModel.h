#pragma once

#include "Platform/log/Log.h"
#include "Quillmere/shell/Countdown.h"
#include "QuillmereKit/widget/WidgetPublisher.h"
#include "QuillmereKit/widget/WidgetRefreshSignature.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

namespace quillmere {

class AppState;
class StoreSession;

/// Keeps the widget snapshot current while its window is the active one: publishes it 0.35 seconds
/// after the last of a burst of changes to the records, after the window has become active, and
/// after the day, the clock or the zone has changed; and never within half a second of the last
/// time, whichever window that was for. Main thread.
///
/// Making the snapshot repairs the store. While long work writes to the store, it waits.
class WidgetRefreshObserverViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// Whether the window has the keyboard.
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY isActiveChanged)

public:
    /// What outlives every session.
    struct Services {
        platform::LogSink& log;
        WidgetPublisher publisher;
    };

    /// `debounce` measures the time since the last change, on a clock that nobody sets. Everything
    /// given must outlive the object.
    WidgetRefreshObserverViewModel(StoreSession& session, AppState& appState,
                                   const Services& services, std::unique_ptr<Countdown> debounce,
                                   QObject* parent = nullptr);

    [[nodiscard]] bool isActive() const { return isActive_; }
    void setActive(bool isActive);

signals:
    void isActiveChanged();

private:
    void update();
    void startJob();
    void refresh();
    [[nodiscard]] WidgetRefreshSignature signature() const;

    StoreSession& session_;
    AppState& appState_;
    platform::Log log_;
    WidgetPublisher publisher_;
    std::unique_ptr<Countdown> debounce_;
    bool isActive_ = false;
    /// Nothing until the history has been read: what is not known yet is not taken for empty.
    std::optional<WidgetRefreshSignature> signature_;
};

} // namespace quillmere
