#include "Quillmere/menubar/MenuBarRootViewModel.h"

#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>

#include <utility>

namespace quillmere {

namespace {

class MenuBarRootViewModelTest : public TimeBankFixture {
protected:
    MenuBarRootViewModel& root() {
        if (!root_) {
            root_ = std::make_unique<MenuBarRootViewModel>(session(), appState_);
        }
        return *root_;
    }
    MenuBarViewModel& panel() { return *root().timeBank(); }

    /// What happens when the panel's content appears.
    void prepare() {
        root().prepare();
        QCoreApplication::processEvents();
    }

    /// Leaves a change in the store that preparation has to repair.
    BalanceAdjustment& recordTooMuch() { return record(70'000, -day); }

    void TearDown() override { root_.reset(); }

private:
    std::unique_ptr<MenuBarRootViewModel> root_;
};

} // namespace

TEST_F(MenuBarRootViewModelTest, IsSetUpOnceTheFirstRunIsComplete) {
    EXPECT_FALSE(root().isSetUp());
    prepare();
    EXPECT_FALSE(root().isSetUp()) << "preparation makes the record and completes nothing";
    TimeBankSettings& settings = *session().settingsRecord();
    settings.setHasCompletedOnboarding(true);
    session().context().save();
    EXPECT_TRUE(root().isSetUp());
    session().context().remove(settings);
    session().context().save();
    EXPECT_FALSE(root().isSetUp());
}

TEST_F(MenuBarRootViewModelTest, PreparesTheStoreWhenItAppears) {
    setUp();
    const BalanceAdjustment& change = recordTooMuch();
    prepare();
    EXPECT_EQ(change.minutes(), 60'000);
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(MenuBarRootViewModelTest, ReportsAFailedPreparationAndKeepsWhatTheStoreHolds) {
    setUp();
    recordTooMuch();
    lockStore();
    prepare();
    EXPECT_EQ(issueTitle(), "Couldn't prepare Quillmere");
    EXPECT_EQ(appState_.issue().message, "Open the main window and try setup again.");
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(panel().balance()->text(), "+1166:40");
}

TEST_F(MenuBarRootViewModelTest, KeepsTheFormOfOneModeAndReplacesItByTheOther) {
    EXPECT_EQ(panel().activeComposer(), nullptr);
    panel().addTime();
    const auto* adding = panel().activeComposer();
    EXPECT_TRUE(panel().isAdding());
    EXPECT_FALSE(adding->takesTime());
    panel().addTime();
    EXPECT_EQ(panel().activeComposer(), adding);
    panel().takeFlexTime();
    EXPECT_TRUE(panel().isTaking());
    EXPECT_FALSE(panel().isAdding());
    EXPECT_TRUE(panel().activeComposer()->takesTime());
    panel().closeComposer();
    EXPECT_EQ(panel().activeComposer(), nullptr);
    EXPECT_FALSE(panel().isTaking());
}

TEST_F(MenuBarRootViewModelTest, ShowsTheBalanceOfASavedChangeAndRepairsTheStore) {
    setUp(60);
    const BalanceAdjustment& change = recordTooMuch();
    for (const QString& text : {QStringLiteral("+999:00"), QStringLiteral("+997:00")}) {
        SCOPED_TRACE(text.toStdString());
        panel().takeFlexTime();
        panel().activeComposer()->setHoursText("2");
        panel().activeComposer()->save();
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel().balance()->text() == text; }, 30'000));
        EXPECT_EQ(change.minutes(), 60'000);
        panel().closeComposer();
        loadHistory();
    }
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(MenuBarRootViewModelTest, ReportsAPreparationThatFailsAfterTheSaveAndKeepsTheChange) {
    setUp();
    const BalanceAdjustment& change = recordTooMuch();
    loadHistory();
    panel().addTime();
    bool hasFinished = false;
    QObject::connect(panel().activeComposer(), &TransactionComposerViewModel::finished,
                     [&] { hasFinished = true; });
    bool isLocked = false;
    QObject::connect(&session(), &StoreSession::adjustmentsChanged, &panel(), [&] {
        if (!session().context().hasChanges() && !std::exchange(isLocked, true)) {
            lockStore();
        }
    });
    panel().activeComposer()->save();
    EXPECT_EQ(issueTitle(), "Couldn't prepare the menu-bar time bank");
    EXPECT_EQ(appState_.issue().message, "The change wasn't saved. Please try again.");
    EXPECT_TRUE(hasFinished);
    EXPECT_EQ(change.minutes(), 70'000);
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(panel().balance()->text(), "+1167:40");
}

} // namespace quillmere
