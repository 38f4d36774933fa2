#include "Quillmere/composer/TransactionComposerViewModel.h"

#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillmere {

namespace {

using platform::Instant;

class TransactionComposerViewModelTest : public TimeBankFixture {
protected:
    TransactionComposerViewModel& open(TransactionComposerMode mode) {
        model_ = std::make_unique<TransactionComposerViewModel>(
            session(), appState_, mode, [this](BalanceAdjustment& saved) {
                EXPECT_EQ(finished_->count(), 0) << "the callback comes first";
                saved_.push_back(&saved);
            });
        finished_ =
            std::make_unique<QSignalSpy>(model_.get(), &TransactionComposerViewModel::finished);
        model_->ensureValidCategory();
        return *model_;
    }

    std::vector<BalanceAdjustment*> stored() {
        return session().context().fetch<BalanceAdjustment>();
    }

    void choose(const char* category) {
        model_->setCategoryIndex(model_->categories()->rowOf(category));
    }

    std::vector<BalanceAdjustment*> saved_;
    std::unique_ptr<QSignalSpy> finished_;

private:
    std::unique_ptr<TransactionComposerViewModel> model_;
};

} // namespace

TEST_F(TransactionComposerViewModelTest, recordsTakenTimeOfTheMomentItIsSaved) {
    auto& model = open(TransactionComposerMode::take);
    model.choosePreset(2);
    choose("appointment");
    model.note()->edit("  Dentist ", 0);
    clock_.advance(90);
    model.save();

    ASSERT_THAT(saved_, testing::SizeIs(1));
    EXPECT_EQ(finished_->count(), 1);
    EXPECT_EQ(stored(), saved_);
    EXPECT_EQ(saved_[0]->minutes(), -120);
    EXPECT_EQ(saved_[0]->kindRawValue(), "appointment");
    EXPECT_EQ(saved_[0]->note(), "Dentist");
    EXPECT_EQ(saved_[0]->date(), now + 90);
    EXPECT_FALSE(session().context().hasChanges());
}

TEST_F(TransactionComposerViewModelTest, recordsAnEarlierDayAtTheTimeTheFormWasOpened) {
    auto& model = open(TransactionComposerMode::add);
    model.setHoursText("0,75");
    ASSERT_TRUE(model.date()->pick(model.date()->cursorRow() - 1));
    clock_.advance(90);
    model.save();

    ASSERT_THAT(saved_, testing::SizeIs(1));
    EXPECT_EQ(saved_[0]->minutes(), 45);
    EXPECT_EQ(saved_[0]->kindRawValue(), "manual");
    EXPECT_EQ(saved_[0]->date(), now - day);
}

TEST_F(TransactionComposerViewModelTest, keepsFormAndStoreWhenTheSaveFails) {
    auto& model = open(TransactionComposerMode::take);
    model.setHoursText("1.25");
    model.note()->edit("School run", 10);
    choose("longLunch");
    lockStore();
    model.save();

    EXPECT_EQ(issueTitle(), "Couldn't save the time change");
    EXPECT_EQ(appState_.issue().message, "Your change wasn't saved. Please try again.");
    EXPECT_EQ(finished_->count(), 0);
    EXPECT_THAT(saved_, testing::IsEmpty());
    EXPECT_THAT(stored(), testing::IsEmpty());
    EXPECT_FALSE(session().context().hasChanges());
    EXPECT_EQ(model.hoursText(), "1.25");
    EXPECT_EQ(model.note()->text(), "School run");
    EXPECT_EQ(model.categoryIndex(), 2);

    unlockStore();
    model.save();
    EXPECT_THAT(stored(), testing::SizeIs(1));
    EXPECT_EQ(finished_->count(), 1);
}

TEST_F(TransactionComposerViewModelTest, savesNothingWhileTheAmountIsNotValid) {
    auto& model = open(TransactionComposerMode::add);
    EXPECT_EQ(model.hoursText(), "1");
    EXPECT_TRUE(model.canSave());
    model.stepDown();
    EXPECT_EQ(model.hoursText(), "0");
    EXPECT_FALSE(model.canSave());
    EXPECT_EQ(model.validationMessage(), "Enter an amount greater than zero.");
    model.save();
    EXPECT_THAT(stored(), testing::IsEmpty());
    EXPECT_EQ(finished_->count(), 0);
}

TEST_F(TransactionComposerViewModelTest, savesNothingOnceTheFormHasFinished) {
    auto& saved = open(TransactionComposerMode::add);
    saved.save();
    saved.save();
    EXPECT_THAT(saved_, testing::SizeIs(1));
    auto& cancelled = open(TransactionComposerMode::add);
    cancelled.cancel();
    cancelled.save();
    EXPECT_THAT(stored(), testing::SizeIs(1));
}

TEST_F(TransactionComposerViewModelTest, offersTheCategoriesOfTheSettings) {
    EXPECT_EQ(open(TransactionComposerMode::take).categories()->rowCount(), 4) << "the defaults";
    EXPECT_EQ(open(TransactionComposerMode::take).categoryIndex(), 3) << "other";

    auto& settings = setUp();
    settings.setVisibleAdjustmentKindsRawValue("longLunch");
    settings.setCustomAdjustmentCategoriesRawValue(R"(["Gym"])");
    session().context().save();
    auto& model = open(TransactionComposerMode::take);
    EXPECT_EQ(model.categories()->rowCount(), 2);
    EXPECT_EQ(model.categoryIndex(), 0) << "other is not offered";
    model.setCategoryIndex(1);
    model.save();
    ASSERT_THAT(saved_, testing::SizeIs(1));
    EXPECT_EQ(saved_[0]->category().title, "Gym");
}

} // namespace quillmere
