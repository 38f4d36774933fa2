#include "Quillmere/shell/AppState.h"

#include "Platform/log/MemoryLogSink.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

namespace quillmere {
namespace {

class AppStateTest : public testing::Test {
protected:
    void report() {
        state_.report(std::runtime_error("disk full"), QStringLiteral("Couldn't save"),
                      QStringLiteral("Please try again."));
    }

    platform::MemoryLogSink log_;
    AppState state_{log_};
};

TEST_F(AppStateTest, EveryReportIsAnIssueOfItsOwn) {
    EXPECT_FALSE(state_.hasIssue());
    report();
    const AppIssue first = state_.issue();
    report();
    EXPECT_EQ(state_.issue().title, first.title);
    EXPECT_EQ(state_.issue().message, QStringLiteral("Please try again."));
    EXPECT_NE(state_.issue().id, first.id);
    state_.dismissIssue();
    EXPECT_FALSE(state_.hasIssue());
}

TEST_F(AppStateTest, TheErrorItselfGoesToTheLogAlone) {
    unsetenv("QUILLMERE_LOG_PRIVATE");
    report();
    const platform::MemoryLogSink::Entry expected{"dev.vantor.quillmere", "UserOperation",
                                                  platform::LogLevel::error,
                                                  "Couldn't save: <private>"};
    ASSERT_EQ(log_.entries().size(), 1U);
    EXPECT_EQ(log_.entries()[0], expected);
}

TEST_F(AppStateTest, WidgetRefreshesKeepTheirDistance) {
    EXPECT_TRUE(state_.claimWidgetRefresh({100}, 0.5));
    EXPECT_FALSE(state_.claimWidgetRefresh({100.25}, 0.5));
    EXPECT_TRUE(state_.claimWidgetRefresh({100.5}, 0.5));
}

} // namespace
} // namespace quillmere
