#pragma once

#include "Platform/base/Clock.h"
#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"

#include <QtCore/QObject>

#include <memory>
#include <stdexcept>

namespace quillmere {

/// What a screen's view model is made of, for Qt Quick Tests: an empty store in memory with its
/// session, and a clock that stands at Sunday, 22 November 2026, 15:10 UTC.
class StoreFixture : public QObject {
    Q_OBJECT

public:
    static constexpr platform::Instant start{1795360200};

    StoreFixture();
    ~StoreFixture() override;

    [[nodiscard]] StoreSession& session() { return *session_; }
    [[nodiscard]] AppState& appState() { return appState_; }
    [[nodiscard]] platform::MemoryPreferences& preferences() { return preferences_; }
    [[nodiscard]] platform::MemoryLogSink& log() { return log_; }

    /// Raises an issue, as a failed operation does.
    Q_INVOKABLE void report(const QString& title, const QString& message);
    Q_INVOKABLE bool hasIssue() const { return appState_.hasIssue(); }

private:
    platform::ManualClock clock_{start};
    TimeFollower time_{clock_};
    platform::MemoryLogSink log_;
    platform::MemoryPreferences preferences_;
    AppState appState_{log_};
    std::unique_ptr<StoreSession> session_;
};

} // namespace quillmere
