#include "Quillmere/history/HistoryViewModel.h"

#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillmere {

namespace {

class HistoryViewModelTest : public TimeBankFixture {
protected:
    HistoryViewModel& show(PersistenceMode mode = PersistenceMode::localOnly) {
        model_ = std::make_unique<HistoryViewModel>(session(), appState_, mode);
        return *model_;
    }

    void recordThree() {
        record(60, -hour, "a");
        record(30, -2 * hour, "b");
        record(15, -day, "c");
    }

    void finishWork() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !appState_.work()->isRunning(); }, 30'000));
    }

    int rowCount() { return model_->items()->rowCount(); }

    std::unique_ptr<HistoryViewModel> model_;
};

} // namespace

TEST_F(HistoryViewModelTest, DoesNotTakeLoadingForEmpty) {
    record(60, -hour);
    auto& model = show();
    EXPECT_TRUE(model.isLoading());
    EXPECT_FALSE(model.isEmpty());
    loadHistory();
    EXPECT_FALSE(model.isLoading());
    EXPECT_EQ(rowCount(), 1);
    session().context().removeAll<BalanceAdjustment>();
    session().context().save();
    EXPECT_TRUE(model.isEmpty());
}

TEST_F(HistoryViewModelTest, AsksInTheWordsOfTheStoreAndTheNumber) {
    constexpr const char* synced = "This deletion syncs to your other devices and can't be undone.";
    constexpr const char* local = "This deletion can't be undone.";
    struct Case {
        PersistenceMode mode;
        bool selectsAll;
        const char* title;
        const char* button;
        const char* message;
    };
    recordThree();
    loadHistory();
    for (const Case& one :
         {Case{PersistenceMode::iCloud, false, "Delete this time-bank change?", "Delete item",
               synced},
          Case{PersistenceMode::localOnly, true, "Delete 3 items?", "Delete items", local},
          Case{PersistenceMode::temporary, false, "Delete this time-bank change?", "Delete item",
               local}}) {
        auto& model = show(one.mode);
        if (one.selectsAll) {
            model.items()->selectAll();
        }
        model.requestDeletionOfSelection(1);
        EXPECT_TRUE(model.isDeletionPending());
        EXPECT_EQ(model.deletionTitle(), one.title);
        EXPECT_EQ(model.deleteTitle(), one.button);
        EXPECT_EQ(model.deletionMessage(), one.message);
        model.dismissDeletion();
        model.confirmDeletion();
        EXPECT_EQ(rowCount(), 3) << "nothing was asked any more";
    }
}

TEST_F(HistoryViewModelTest, DeletesWhatWasConfirmedAndNothingElse) {
    recordThree();
    loadHistory();
    auto& model = show();
    model.requestDeletion(1);
    model.requestDeletion(0);
    model.confirmDeletion();
    model.confirmDeletion();
    EXPECT_EQ(rowCount(), 2) << "the first question is the one answered, once";
    EXPECT_EQ(model.items()->adjustment(0)->note(), "a");

    record(5, -3 * hour, "d");
    model.items()->toggle(0);
    model.items()->toggle(2);
    model.requestDeletionOfSelection(1);
    model.confirmDeletion();
    finishWork();
    ASSERT_EQ(rowCount(), 1);
    EXPECT_EQ(model.items()->adjustment(0)->note(), "d");
    EXPECT_EQ(model.items()->selectedCount(), 0);
}

TEST_F(HistoryViewModelTest, DeletesNothingWhenTheStoreFails) {
    recordThree();
    loadHistory();
    auto& model = show();
    lockStore();
    model.requestDeletion(0);
    model.confirmDeletion();
    EXPECT_EQ(issueTitle(), "Couldn't delete the item");
    EXPECT_EQ(appState_.issue().message, "Nothing was deleted. Please try again.");
    EXPECT_EQ(rowCount(), 3);
    model.items()->selectAll();
    model.requestDeletionOfSelection(0);
    model.confirmDeletion();
    finishWork();
    EXPECT_EQ(issueTitle(), "Couldn't delete the items");
    EXPECT_EQ(rowCount(), 3);
    EXPECT_FALSE(session().context().hasChanges());
}

TEST_F(HistoryViewModelTest, OpensOneChangeAtATime) {
    recordThree();
    loadHistory();
    auto& model = show();
    model.items()->toggle(2);
    model.open(1);
    ASSERT_NE(model.editor(), nullptr);
    EXPECT_EQ(model.editor()->note()->text(), "b");
    EXPECT_EQ(model.items()->selectedCount(), 0);
    const auto* first = model.editor();
    model.open(0);
    EXPECT_EQ(model.editor(), first);
    model.editor()->requestDelete();
    model.editor()->confirmDelete();
    EXPECT_EQ(rowCount(), 2);
    model.closeEditor();
    EXPECT_EQ(model.editor(), nullptr);
}

} // namespace quillmere
