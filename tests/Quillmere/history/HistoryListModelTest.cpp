#include "Quillmere/history/HistoryListModel.h"

#include "Quillmere/dashboard/LedgerTransaction.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace quillmere {

namespace {

class HistoryListModelTest : public TimeBankFixture {
protected:
    HistoryListModelTest() {
        today_ = &record(60, -hour, "today");
        noon_ = &record(-30, -5 * hour, "noon");
        yesterday_ = &record(15, -day, "yesterday");
        record(0, -day, "no minutes");
        loadHistory();
        model_ = std::make_unique<HistoryListModel>(session());
        tester_ = std::make_unique<QAbstractItemModelTester>(
            model_.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    QVariant value(int row, int role) const { return model_->data(model_->index(row), role); }

    /// The titles in order, each day's behind its name, selected ones with a star.
    std::string shown() const {
        std::string text;
        for (int row = 0; row < model_->rowCount(); ++row) {
            if (value(row, HistoryListModel::FirstOfDayRole).toBool()) {
                text += value(row, HistoryListModel::DayTitleRole).toString().toStdString() + ":";
            }
            text += " " + value(row, HistoryListModel::TransactionRole)
                              .value<LedgerTransaction>()
                              .title.toStdString();
            text += value(row, HistoryListModel::SelectedRole).toBool() ? "*" : "";
            text += value(row, HistoryListModel::LastOfDayRole).toBool() ? ". " : "";
        }
        return text;
    }

    BalanceAdjustment* today_ = nullptr;
    BalanceAdjustment* noon_ = nullptr;
    BalanceAdjustment* yesterday_ = nullptr;
    std::unique_ptr<HistoryListModel> model_;

private:
    std::unique_ptr<QAbstractItemModelTester> tester_;
};

} // namespace

TEST_F(HistoryListModelTest, ListsChangesByDayNewestFirst) {
    EXPECT_EQ(shown(), "Sunday, Nov 22: today noon. Saturday, Nov 21: yesterday. ");
    EXPECT_EQ(value(1, HistoryListModel::SpokenRole).toString(),
              "noon, Sun, Nov 22, 10:10 AM, minus 0 hours, 30 minutes");
}

TEST_F(HistoryListModelTest, MovesOneRowForOneChange) {
    struct Case {
        const char* name;
        std::function<void()> change;
        int inserted, removed;
        const char* shown;
    };
    const std::vector<Case> cases{
        {"edited", [this] { noon_->setNote("lunch"); }, 0, 0,
         "Sunday, Nov 22: today lunch. Saturday, Nov 21: yesterday. "},
        {"dated anew within its place", [this] { noon_->setDate(now - 6 * hour); }, 0, 0,
         "Sunday, Nov 22: today lunch. Saturday, Nov 21: yesterday. "},
        {"another day without passing another", [this] { noon_->setDate(now - 20 * hour); }, 1, 1,
         "Sunday, Nov 22: today. Saturday, Nov 21: lunch yesterday. "},
        {"past others", [this] { yesterday_->setDate(now); }, 1, 1,
         "Sunday, Nov 22: yesterday today. Saturday, Nov 21: lunch. "},
        {"to no minutes", [this] { today_->setMinutes(0); }, 0, 1,
         "Sunday, Nov 22: yesterday. Saturday, Nov 21: lunch. "},
        {"deleted", [this] { session().context().remove(*noon_); }, 0, 1,
         "Sunday, Nov 22: yesterday. "},
    };
    QSignalSpy reset(model_.get(), &QAbstractItemModel::modelReset);
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        QSignalSpy inserted(model_.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(model_.get(), &QAbstractItemModel::rowsRemoved);
        one.change();
        session().context().save();
        EXPECT_EQ(shown(), one.shown);
        EXPECT_EQ(inserted.count(), one.inserted);
        EXPECT_EQ(removed.count(), one.removed);
    }
    EXPECT_EQ(reset.count(), 0);
}

TEST_F(HistoryListModelTest, RegroupsWhenTheZoneMoves) {
    QSignalSpy changed(model_.get(), &QAbstractItemModel::dataChanged);
    setenv("TZ", "Pacific/Auckland", 1);
    time_.check();
    EXPECT_EQ(shown(), "Monday, Nov 23: today. Sunday, Nov 22: noon yesterday. ");
    EXPECT_EQ(changed.count(), 1);
    setenv("TZ", "UTC", 1);
    time_.check();
    EXPECT_EQ(shown(), "Sunday, Nov 22: today noon. Saturday, Nov 21: yesterday. ");
}

TEST_F(HistoryListModelTest, SelectsRowsThatKeepTheirSelection) {
    model_->toggle(1);
    EXPECT_EQ(model_->selectedCount(), 1);
    record(5, 0, "new");
    EXPECT_EQ(shown(), "Sunday, Nov 22: new today noon*. Saturday, Nov 21: yesterday. ");
    model_->selectTo(3, 1);
    EXPECT_EQ(shown(), "Sunday, Nov 22: new today* noon*. Saturday, Nov 21: yesterday*. ");
    model_->selectTo(0, 3);
    EXPECT_EQ(shown(), "Sunday, Nov 22: new* today* noon. Saturday, Nov 21: yesterday. ")
        << "a range reaches from where it began";
    session().context().remove(*today_);
    session().context().save();
    EXPECT_EQ(model_->selectedCount(), 1);
    model_->selectAll();
    EXPECT_THAT(model_->selectedRefs(), testing::SizeIs(3));
    model_->clearSelection();
    EXPECT_EQ(model_->selectedCount(), 0);
}

} // namespace quillmere
