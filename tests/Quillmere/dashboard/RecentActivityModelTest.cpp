#include "Quillmere/dashboard/RecentActivityModel.h"

#include "QuillmereKit/records/BalanceAdjustment.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

#include <deque>

namespace quillmere {

namespace {

/// Items as text: a letter is a record, the text behind it its title.
class RecentActivityModelTest : public testing::Test {
protected:
    RecentActivityModelTest() {
        for (int i = 0; i < 26; ++i) {
            records_.emplace_back(BalanceAdjustmentValues{});
        }
    }

    void show(const std::vector<std::string>& titles) {
        std::vector<RecentActivityModel::Item> items;
        for (const std::string& title : titles) {
            LedgerTransaction transaction;
            transaction.title = QString::fromStdString(title);
            items.push_back(
                {&records_[static_cast<std::size_t>(title.front() - 'a')], transaction});
        }
        model_.setItems(std::move(items));
    }

    std::vector<std::string> shown() const {
        std::vector<std::string> titles;
        for (int row = 0; row < model_.rowCount(); ++row) {
            titles.push_back(model_.data(model_.index(row), RecentActivityModel::TransactionRole)
                                 .value<LedgerTransaction>()
                                 .title.toStdString());
        }
        return titles;
    }

    std::deque<BalanceAdjustment> records_;
    RecentActivityModel model_;
};

} // namespace

TEST_F(RecentActivityModelTest, MovesBetweenListsByTheRowsThatDiffer) {
    struct Case {
        const char* name;
        std::vector<std::string> from;
        std::vector<std::string> to;
        int inserted, removed, moved, changed;
    };
    const Case cases[] = {
        {"first change", {}, {"a"}, 1, 0, 0, 0},
        {"a newer one pushes the oldest out", {"c", "b", "a"}, {"d", "c", "b"}, 1, 1, 0, 0},
        {"undone", {"d", "c", "b"}, {"c", "b", "a"}, 1, 1, 0, 0},
        {"note edited", {"c", "b", "a"}, {"c", "b!", "a"}, 0, 0, 0, 1},
        {"dated anew", {"c", "b", "a"}, {"a", "c", "b"}, 0, 0, 1, 0},
        {"the same", {"c", "b", "a"}, {"c", "b", "a"}, 0, 0, 0, 0},
        {"erased", {"c", "b", "a"}, {}, 0, 3, 0, 0},
    };
    const QAbstractItemModelTester tester(&model_,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        show(one.from);
        QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(&model_, &QAbstractItemModel::rowsRemoved);
        QSignalSpy moved(&model_, &QAbstractItemModel::rowsMoved);
        QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
        show(one.to);
        EXPECT_EQ(shown(), one.to);
        EXPECT_EQ(inserted.count(), one.inserted);
        EXPECT_EQ(removed.count(), one.removed);
        EXPECT_EQ(moved.count(), one.moved);
        EXPECT_EQ(changed.count(), one.changed);
    }
}

} // namespace quillmere
