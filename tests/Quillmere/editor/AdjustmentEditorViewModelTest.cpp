#include "Quillmere/editor/AdjustmentEditorViewModel.h"

#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillmere {

namespace {

class AdjustmentEditorViewModelTest : public TimeBankFixture {
protected:
    AdjustmentEditorViewModel& open(BalanceAdjustment* adjustment) {
        model_ = std::make_unique<AdjustmentEditorViewModel>(session(), appState_, adjustment);
        finished_ =
            std::make_unique<QSignalSpy>(model_.get(), &AdjustmentEditorViewModel::finished);
        return *model_;
    }

    BalanceAdjustment& stored(std::int64_t minutes, const char* kind, double offset = -day) {
        auto& adjustment = record(minutes, offset, "Dentist");
        adjustment.setKindRawValue(kind);
        session().context().save();
        return adjustment;
    }

    void choose(std::string_view kind) {
        const int row = model_->categories()->rowOf(kind);
        ASSERT_GE(row, 0) << kind;
        model_->setCategoryIndex(row);
    }

    std::size_t storedCount() { return session().context().fetch<BalanceAdjustment>().size(); }

    std::unique_ptr<AdjustmentEditorViewModel> model_;
    std::unique_ptr<QSignalSpy> finished_;
};

} // namespace

TEST_F(AdjustmentEditorViewModelTest, WritesTheRecordAsPicked) {
    auto& adjustment = stored(2000, "manual");
    const auto id = adjustment.id();
    auto& model = open(&adjustment);
    EXPECT_EQ(model.title(), "Edit adjustment");
    EXPECT_EQ(model.hoursText(), "Hours: 24");
    EXPECT_FALSE(model.choosesMinutes());
    model.setHours(2);
    model.setMinutes(15);
    choose("appointment");
    model.note()->edit("  School run \n", 0);
    clock_.advance(90);
    ASSERT_TRUE(model.date()->pick(model.date()->cursorRow() - 1));
    model.save();

    EXPECT_EQ(finished_->count(), 1);
    EXPECT_EQ(adjustment.minutes(), -135);
    EXPECT_EQ(adjustment.kindRawValue(), "appointment");
    EXPECT_EQ(adjustment.note(), "School run");
    EXPECT_EQ(adjustment.date(), now - 2 * day);
    EXPECT_EQ(adjustment.createdAt(), now);
    EXPECT_EQ(adjustment.modifiedAt(), now + 90);
    EXPECT_EQ(adjustment.id(), id);
    EXPECT_FALSE(session().context().hasChanges());
    model.save();
    EXPECT_EQ(finished_->count(), 1) << "a form that has finished does nothing";
}

TEST_F(AdjustmentEditorViewModelTest, OpensAFutureDateAsNowAndKeepsItToday) {
    auto& adjustment = stored(60, "manual", 2 * day);
    auto& model = open(&adjustment);
    EXPECT_EQ(model.date()->selected(), now);
    clock_.advance(30);
    model.save();
    EXPECT_EQ(adjustment.date(), now) << "no snapping to the moment of the save";
}

TEST_F(AdjustmentEditorViewModelTest, LetsTheCategorySettleTheDirection) {
    auto& adjustment = stored(60, "holiday");
    adjustment.setMinutes(-60);
    session().context().save();
    auto& model = open(&adjustment);
    EXPECT_EQ(model.directionIndex(), 1) << "a contradiction stays until another is chosen";
    EXPECT_FALSE(model.choosesDirection());
    EXPECT_EQ(model.directionCaption(),
              "This legacy category adds the amount below to your time bank.");
    choose("manual");
    EXPECT_EQ(model.directionIndex(), 1);
    EXPECT_TRUE(model.choosesDirection());
    EXPECT_EQ(model.directionCaption(), "Choose whether to add or deduct the amount below.");
    choose("holiday");
    EXPECT_EQ(model.directionIndex(), 0) << "the record's own category stays selectable";
    choose("appointment");
    EXPECT_EQ(model.directionIndex(), 1);
    EXPECT_EQ(model.directionCaption(),
              "This category deducts the amount below from your time bank.");
}

TEST_F(AdjustmentEditorViewModelTest, SavesWhatIsNoCategoryAsManual) {
    auto& adjustment = stored(60, "sabbatical");
    auto& model = open(&adjustment);
    EXPECT_EQ(model.categoryIndex(), -1);
    EXPECT_TRUE(model.choosesDirection());
    model.save();
    EXPECT_EQ(adjustment.kindRawValue(), "manual");
}

TEST_F(AdjustmentEditorViewModelTest, MakesANewChange) {
    auto& model = open(nullptr);
    EXPECT_EQ(model.title(), "Add adjustment");
    EXPECT_FALSE(model.canDelete());
    model.requestDelete();
    EXPECT_FALSE(model.showingDeleteConfirmation());
    model.setHours(0);
    EXPECT_FALSE(model.canSave());
    EXPECT_EQ(model.saveHint(), "Choose a duration before saving");
    model.save();
    EXPECT_EQ(storedCount(), 0U);
    model.setMinutes(5);
    EXPECT_EQ(model.saveHint(), "Saves this balance adjustment");
    model.setDirectionIndex(1);
    model.save();
    const auto all = session().context().fetch<BalanceAdjustment>();
    ASSERT_THAT(all, testing::SizeIs(1));
    EXPECT_EQ(all[0]->minutes(), -5);
    EXPECT_EQ(all[0]->date(), now);
    EXPECT_EQ(all[0]->kindRawValue(), "manual");
}

TEST_F(AdjustmentEditorViewModelTest, KeepsFormAndRecordWhenTheStoreFails) {
    auto& adjustment = stored(60, "manual");
    const auto values = adjustment.values();
    auto& model = open(&adjustment);
    model.setHours(3);
    model.note()->edit("Other words", 0);
    lockStore();
    model.save();
    EXPECT_EQ(issueTitle(), "Couldn't save the adjustment");
    EXPECT_EQ(appState_.issue().message,
              "Your changes weren't saved. The editor will stay open so you can try again.");
    EXPECT_EQ(adjustment.values(), values);

    model.requestDelete();
    model.confirmDelete();
    EXPECT_EQ(issueTitle(), "Couldn't delete the activity");
    EXPECT_EQ(appState_.issue().message,
              "Nothing was deleted. Keep the editor open and try again.");
    EXPECT_TRUE(adjustment.isAlive());
    EXPECT_EQ(finished_->count(), 0);
    EXPECT_EQ(model.hours(), 3);
    EXPECT_EQ(model.note()->text(), "Other words");

    unlockStore();
    model.save();
    EXPECT_EQ(adjustment.minutes(), 180);
    EXPECT_EQ(finished_->count(), 1);
}

TEST_F(AdjustmentEditorViewModelTest, DeletesOnlyWhatWasConfirmed) {
    auto& model = open(&stored(60, "manual"));
    model.confirmDelete();
    model.requestDelete();
    model.dismissDeleteConfirmation();
    model.confirmDelete();
    EXPECT_EQ(storedCount(), 1U);
    model.requestDelete();
    model.confirmDelete();
    EXPECT_EQ(storedCount(), 0U);
    EXPECT_EQ(finished_->count(), 1);
}

TEST_F(AdjustmentEditorViewModelTest, TellsThatTheChangeIsGone) {
    auto& adjustment = stored(60, "manual");
    auto& model = open(&adjustment);
    session().context().remove(adjustment);
    session().context().save();
    model.save();
    EXPECT_EQ(issueTitle(), "Couldn't save the adjustment");
    EXPECT_EQ(finished_->count(), 0);
}

TEST_F(AdjustmentEditorViewModelTest, CountsTheNoteInCharacters) {
    auto& model = open(&stored(60, "manual"));
    EXPECT_EQ(model.note()->counter(), "7/280 characters");
    model.note()->edit(QString(300, QChar('n')), 300);
    EXPECT_EQ(model.note()->text(), QString(280, QChar('n')));
    EXPECT_EQ(model.note()->counter(), "280/280 characters");
}

} // namespace quillmere
