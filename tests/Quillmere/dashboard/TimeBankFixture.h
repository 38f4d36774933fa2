#pragma once

#include "Platform/log/MemoryLogSink.h"
#include "Platform/preferences/MemoryPreferences.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

struct sqlite3;

namespace quillmere {

/// A time bank on a store file of its own, with a clock that stands at Sunday, 22 November 2026,
/// 15:10 UTC. A session starts on first use; the history arrives with `loadHistory`.
class TimeBankFixture : public testing::Test {
public:
    ~TimeBankFixture() override;

protected:
    static constexpr platform::Instant now{1795360200};
    static constexpr double minute = 60;
    static constexpr double hour = 3600;
    static constexpr double day = 86400;

    TimeBankFixture();

    StoreSession& session();
    /// Runs the event loop until the history is there.
    void loadHistory();
    /// Saves a change `offset` seconds from now.
    BalanceAdjustment& record(std::int64_t minutes, double offset, const std::string& note = "");
    /// Saves a settings record with setup complete.
    TimeBankSettings& setUp(std::int64_t startingBalanceMinutes = 0);
    /// Title of the issue shown, or nothing.
    std::string issueTitle() const;

    /// From now on saves fail, because another program keeps the store locked.
    void lockStore();
    void unlockStore();

    platform::ManualClock clock_{now};
    TimeFollower time_{clock_};
    platform::MemoryLogSink log_;
    AppState appState_{log_};
    platform::MemoryPreferences preferences_;

private:
    TestFolder folder_;
    std::shared_ptr<platform::store::Store> store_;
    std::unique_ptr<StoreSession> session_;
    sqlite3* locker_ = nullptr;
};

} // namespace quillmere
