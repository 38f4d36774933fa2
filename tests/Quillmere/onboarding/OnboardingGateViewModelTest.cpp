#include "Quillmere/onboarding/OnboardingGateViewModel.h"

#include "QuillmereKit/migration/ManualLedgerMigration.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QSignalSpy>

namespace quillmere {

namespace {

using Gate = OnboardingGateViewModel;

constexpr auto entriesKey = "timeEntries";
constexpr auto doneKey = "legacyPrototypeMigration.v1";
constexpr auto storedId = "11111111-1111-4111-8111-111111111111";
constexpr auto threeEntries = R"([
    {"id":"11111111-1111-4111-8111-111111111111","minutes":1,"date":0,"note":""},
    {"id":"22222222-2222-4222-8222-222222222222","minutes":5000,"date":0,"note":" kept "},
    {"id":"33333333-3333-4333-8333-333333333333","minutes":-30,"date":86400,"note":""}])";

class OnboardingGateTest : public TimeBankFixture {
protected:
    Gate& gate() {
        if (!gate_) {
            gate_ = std::make_unique<Gate>(session(), appState_, preferences_, prototype_);
        }
        return *gate_;
    }

    /// What happens when the progress view appears.
    void prepare() {
        gate().prepare();
        QCoreApplication::processEvents();
    }

    /// What is shown once the event loop has run.
    Gate::Content content() {
        QCoreApplication::sendPostedEvents();
        return gate().content();
    }

    std::vector<BalanceAdjustment*> changes() {
        return session().context().fetch<BalanceAdjustment>();
    }

    void TearDown() override { gate_.reset(); }

    platform::MemoryPreferences prototype_;

private:
    std::unique_ptr<Gate> gate_;
};

} // namespace

TEST_F(OnboardingGateTest, LeadsFromPreparationOverTheFirstRunToTheScreens) {
    EXPECT_EQ(content(), Gate::Preparing);
    prepare();
    EXPECT_EQ(content(), Gate::FirstRun);
    TimeBankSettings& settings = *session().settingsRecord();
    EXPECT_EQ(settings.weekdayMinutes().front(), 480);

    clock_.advance(hour);
    gate().onboarding()->complete();
    EXPECT_EQ(content(), Gate::Screens);
    EXPECT_EQ(settings.calculationStartDate(), time_.current().startOfDay(now));
    EXPECT_EQ(settings.weekdayMinutes(), WeekdayMinutes{});
    EXPECT_EQ(settings.modifiedAt(), now + hour);
    EXPECT_FALSE(session().context().hasChanges());
    ASSERT_EQ(changes().size(), 1U);
    EXPECT_TRUE(ManualLedgerMigration::isCarryover(*changes().front()));
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(OnboardingGateTest, ShowsTheScreensOfASetUpStoreAtOnceAndReturnsWhenItIsErased) {
    TimeBankSettings& settings = setUp();
    EXPECT_EQ(content(), Gate::Screens);
    session().context().remove(settings);
    session().context().save();
    EXPECT_EQ(content(), Gate::Preparing);
    prepare();
    EXPECT_EQ(content(), Gate::FirstRun);
}

TEST_F(OnboardingGateTest, ReportsAFailedPreparationAndTriesAgainWhenItAppearsAgain) {
    const QSignalSpy shown(&gate(), &Gate::contentChanged);
    lockStore();
    prepare();
    EXPECT_EQ(content(), Gate::Preparing);
    EXPECT_EQ(shown.count(), 0) << "a progress view that appears again would try without end";
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(issueTitle(), "Couldn't prepare your time bank");
    EXPECT_EQ(appState_.issue().message,
              "Quillmere couldn't prepare its settings. Please try reopening the app.");
    EXPECT_EQ(preferences_.boolean(doneKey), true) << "the import is tried all the same";
    unlockStore();
    prepare();
    EXPECT_EQ(content(), Gate::FirstRun);
}

TEST_F(OnboardingGateTest, KeepsTheFirstRunScreenWhenCompletionFails) {
    prepare();
    ASSERT_EQ(content(), Gate::FirstRun);
    const QSignalSpy shown(&gate(), &Gate::contentChanged);
    TimeBankSettings& settings = *session().settingsRecord();
    lockStore();
    gate().onboarding()->complete();
    EXPECT_EQ(content(), Gate::FirstRun);
    EXPECT_EQ(shown.count(), 0);
    EXPECT_FALSE(settings.hasCompletedOnboarding());
    EXPECT_EQ(settings.weekdayMinutes().front(), 480);
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(issueTitle(), "Couldn't finish setup");
    EXPECT_EQ(appState_.issue().message, "Your time bank wasn't saved. Please try again.");
}

TEST_F(OnboardingGateTest, CompletesAlsoWhenNothingIsLeftToRepair) {
    prepare();
    session().context().insert(
        std::make_unique<BalanceAdjustment>(ManualLedgerMigration::adjustmentID(), now, 0, "",
                                            BalanceAdjustmentKind::manual, now, now));
    session().context().save();
    gate().onboarding()->complete();
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(content(), Gate::Screens);
}

TEST_F(OnboardingGateTest, ImportsThePrototypeOnce) {
    struct Case {
        const char* name;
        std::optional<bool> done;
        const char* bytes; ///< null for a text in place of bytes
        std::size_t imported;
        bool doneAfter;
        const char* issue;
    };
    const Case cases[] = {
        {"one of three known", {}, threeEntries, 2, true, ""},
        {"again", {}, threeEntries, 0, true, ""},
        {"done before", true, "not looked at", 0, true, ""},
        {"not decodable", false, "[{}]", 0, false, "Couldn't import earlier data"},
        {"a text, not bytes", false, nullptr, 0, true, ""},
    };
    session().context().insert(std::make_unique<BalanceAdjustment>(
        *platform::Uuid::parse(storedId), now, 7, "", BalanceAdjustmentKind::manual, now, now));
    session().context().save();
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        preferences_.remove(doneKey);
        if (one.done) {
            preferences_.setBoolean(doneKey, *one.done);
        }
        one.bytes ? prototype_.setData(entriesKey, one.bytes)
                  : prototype_.setString(entriesKey, threeEntries);
        appState_.dismissIssue();
        const std::size_t before = changes().size();
        prepare();
        EXPECT_EQ(changes().size() - before, one.imported);
        EXPECT_EQ(preferences_.boolean(doneKey).value_or(false), one.doneAfter);
        EXPECT_EQ(issueTitle(), one.issue);
        EXPECT_FALSE(session().context().hasChanges());
    }
    EXPECT_EQ(prototype_.string(entriesKey), threeEntries) << "the prototype's data is not ours";
}

TEST_F(OnboardingGateTest, LeavesTheImportForNextTimeWhenItCannotBeSaved) {
    setUp();
    prototype_.setData(entriesKey, threeEntries);
    lockStore();
    prepare();
    EXPECT_EQ(issueTitle(), "Couldn't import earlier data");
    EXPECT_EQ(
        appState_.issue().message,
        "Your original Quillmere data was left untouched. The app will try the import again next "
        "time.");
    EXPECT_TRUE(changes().empty());
    EXPECT_FALSE(preferences_.boolean(doneKey).value_or(false));
}

} // namespace quillmere
