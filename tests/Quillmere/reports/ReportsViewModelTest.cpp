#include "Quillmere/reports/ReportsViewModel.h"

#include "Quillmere/dashboard/LedgerTransaction.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <stdlib.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr int weekIndex = 0;
const std::string header = "date,added_hours,removed_hours,net_change_hours\n";

/// On Sunday, 22 November 2026, 15:10 UTC, where weeks begin on Sunday.
class ReportsViewModelTest : public TimeBankFixture {
protected:
    ReportsViewModel& model() {
        if (!model_) {
            model_ = std::make_unique<ReportsViewModel>(session(), appState_, folders_);
        }
        return *model_;
    }

    /// The model once the history is there.
    ReportsViewModel& loaded() {
        loadHistory();
        return model();
    }

    void moveClock(platform::Instant instant) {
        clock_.set(instant);
        time_.check();
    }

    void setZone(const char* name) {
        setenv("TZ", name, 1);
        time_.check();
    }

    QString changedDays() {
        QString text;
        for (int row = 0; row < model().changedDays()->rowCount(); ++row) {
            const QModelIndex index = model().changedDays()->index(row, 0);
            text += index.data(ReportDaysModel::DateTextRole).toString() + ' ' +
                    index.data(ReportDaysModel::SignedTextRole).toString() + '\n';
        }
        return text;
    }

    QString figures() {
        const LedgerFigures& all = model().figures();
        return all.added + ' ' + all.subtracted + ' ' + all.net;
    }

    /// Opens the changed day at this place of the list.
    SelectedLedgerDay* open(int place) {
        model().requestDay(
            model().changedDays()->index(place, 0).data(ReportDaysModel::RowRole).toInt());
        return model().selectedDay();
    }

    static LedgerTransaction change(SelectedLedgerDay* shown, int row) {
        return shown->changes()
            ->data(shown->changes()->index(row), DayTransactionsModel::TransactionRole)
            .value<LedgerTransaction>();
    }

    void TearDown() override { model_.reset(); }

    TestFolder folder_;
    platform::UserFolders folders_{folder_.path(), folder_.path(), folder_.path()};

private:
    std::unique_ptr<ReportsViewModel> model_;
};

} // namespace

TEST_F(ReportsViewModelTest, SumsTheMonthByDays) {
    record(90, -day);
    record(-30, -day + hour);
    record(60, -2 * day);
    record(-60, -2 * day + hour);
    record(-45, -21 * day);
    record(600, -22 * day);
    record(15, 8 * day);
    EXPECT_TRUE(model().isLoading());
    EXPECT_EQ(figures(), "\u2014 \u2014 \u2014");
    EXPECT_FALSE(model().isEmpty());
    EXPECT_EQ(model().days()->rowCount(), 30);
    loadHistory();
    EXPECT_FALSE(model().isLoading());
    EXPECT_EQ(model().periodTitle(), "November 2026");
    EXPECT_EQ(model().periodTitleInLowerCase(), "november 2026");
    EXPECT_EQ(figures(), "2:45 2:15 +0:30");
    EXPECT_EQ(changedDays(), "Sun, Nov 1 \u22120:45\nSat, Nov 21 +1:00\nMon, Nov 30 +0:15\n");
    EXPECT_EQ(QStringList(model().weekdays()).join(' '), "Sun Mon Tue Wed Thu Fri Sat");
    EXPECT_EQ(model().days()->cursorRow(), 21);
}

TEST_F(ReportsViewModelTest, FollowsTheRecords) {
    loaded();
    const QAbstractItemModelTester tester(model().changedDays());
    EXPECT_TRUE(model().isEmpty());
    EXPECT_EQ(figures(), "0:00 0:00 +0:00");
    BalanceAdjustment& change = record(-90, -day);
    EXPECT_EQ(changedDays(), "Sat, Nov 21 \u22121:30\n");
    EXPECT_TRUE(model().figures().isNetNegative);
    EXPECT_FALSE(model().isEmpty());
    change.setMinutes(30);
    change.setDate(now);
    session().context().save();
    EXPECT_EQ(changedDays(), "Sun, Nov 22 +0:30\n");
    session().context().remove(change);
    session().context().save();
    EXPECT_TRUE(model().isEmpty());
}

TEST_F(ReportsViewModelTest, PagesToThePastAndNeverIntoTheFuture) {
    loaded();
    EXPECT_FALSE(model().hasNextPeriod());
    model().showNextPeriod();
    EXPECT_EQ(model().periodTitle(), "November 2026");
    for (const char* title : {"October 2026", "September 2026"}) {
        model().showPreviousPeriod();
        EXPECT_EQ(model().periodTitle(), title);
        EXPECT_TRUE(model().hasNextPeriod());
    }
    EXPECT_EQ(model().periodWord(), "month");
    model().chooseGranularity(weekIndex);
    EXPECT_EQ(model().periodWord(), "week");
    EXPECT_EQ(model().periodTitle(), "Sep 20\u2013Sep 26, 2026");
    EXPECT_EQ(model().days()->cursorRow(), 2);
    model().showNextPeriod();
    EXPECT_EQ(model().periodTitle(), "Sep 27\u2013Oct 3, 2026");
    // The way forward ends at the present moment.
    model().chooseGranularity(1);
    model().showNextPeriod();
    model().showNextPeriod();
    model().showNextPeriod();
    EXPECT_EQ(model().periodTitle(), "November 2026");
    model().chooseGranularity(weekIndex);
    EXPECT_EQ(model().periodTitle(), "Nov 22\u2013Nov 28, 2026");
    EXPECT_FALSE(model().hasNextPeriod());
}

TEST_F(ReportsViewModelTest, LetsTheNextPeriodBeShownWhenItBegins) {
    loaded();
    model().chooseGranularity(weekIndex);
    moveClock(now + 6 * day);
    EXPECT_FALSE(model().hasNextPeriod());
    EXPECT_TRUE(model().days()->index(6).data(ReportDaysModel::TodayRole).toBool());
    moveClock(now + 6 * day + 9 * hour);
    EXPECT_TRUE(model().hasNextPeriod());
    EXPECT_EQ(model().periodTitle(), "Nov 22\u2013Nov 28, 2026");
    model().showNextPeriod();
    EXPECT_EQ(model().periodTitle(), "Nov 29\u2013Dec 5, 2026");
}

TEST_F(ReportsViewModelTest, MovesWithTheTimeZone) {
    record(60, -15 * hour);
    record(30, -22 * day + 9 * hour);
    loaded();
    EXPECT_EQ(changedDays(), "Sun, Nov 1 +0:30\nSun, Nov 22 +1:00\n");
    open(1);
    setZone("America/New_York");
    EXPECT_EQ(changedDays(), "Sat, Nov 21 +1:00\n");
    EXPECT_EQ(model().selectedDay()->title(), "Saturday, November 21");
    EXPECT_EQ(model().selectedDay()->figures().net, "+1:00");
    EXPECT_EQ(model().csvExport().csv, header + "2026-11-21,1.00,0.00,1.00\n");
    setZone("UTC");
}

TEST_F(ReportsViewModelTest, OpensTheChangesOfAChangedDay) {
    record(90, -day + hour, "Later");
    record(-30, -day, "Earlier");
    record(0, -day, "Nothing");
    record(60, 0, "Today");
    loaded();
    model().requestDay(3);
    EXPECT_EQ(model().selectedDay(), nullptr);
    SelectedLedgerDay* shown = open(0);
    ASSERT_NE(shown, nullptr);
    const QAbstractItemModelTester tester(shown->changes());
    EXPECT_EQ(shown->title(), "Saturday, November 21");
    EXPECT_EQ(shown->figures().added, "1:30");
    EXPECT_EQ(shown->figures().subtracted, "0:30");
    EXPECT_EQ(shown->figures().net, "+1:00");
    ASSERT_EQ(shown->changes()->rowCount(), 2);
    EXPECT_EQ(change(shown, 0).title, "Earlier");
    EXPECT_EQ(change(shown, 1).title, "Later");

    BalanceAdjustment& added = record(-120, -day - hour, "From elsewhere");
    EXPECT_EQ(shown->figures().net, "\u22121:00");
    EXPECT_EQ(change(shown, 0).title, "From elsewhere");
    added.setNote("Renamed");
    session().context().save();
    EXPECT_EQ(change(shown, 0).title, "Renamed");
    QSignalSpy closed(&model(), &ReportsViewModel::selectedDayChanged);
    model().closeDay();
    EXPECT_EQ(model().selectedDay(), nullptr);
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(ReportsViewModelTest, NamesAndWritesTheExportOfThePeriod) {
    record(90, -day);
    record(-20, -day);
    record(30, -30 * day);
    loaded();
    const ReportCSVExport month = model().csvExport();
    EXPECT_EQ(month.csv, header + "2026-11-21,1.50,0.33,1.17\n");
    EXPECT_EQ(month.filename, "Quillmere-2026-11.csv");
    model().chooseGranularity(weekIndex);
    EXPECT_EQ(model().csvExport().filename, "Quillmere-2026-11-22.csv");
    EXPECT_EQ(model().csvExport().csv, header);

    ASSERT_FALSE(model().csvExport().write(folder_.path()).empty());
    const fs::path written = month.write(folder_.path());
    EXPECT_EQ(written, folder_.path() / "Quillmere Reports" / "Quillmere-2026-11.csv");
    EXPECT_EQ(std::distance(fs::directory_iterator(written.parent_path()), {}), 1);
    std::ifstream stream(written, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(stream), {}), month.csv);
    const auto mode = [](const fs::path& path) { return fs::status(path).permissions(); };
    EXPECT_EQ(mode(written), fs::perms{0600});
    EXPECT_EQ(mode(written.parent_path()), fs::perms{0700});
}

TEST_F(ReportsViewModelTest, SharesThePeriodOnShow) {
    record(90, -day);
    loaded();
    FileShare* share = model().csvShare();
    share->save();
    ASSERT_TRUE(QTest::qWaitFor([&] { return share->step() == FileShare::Choosing; }, 20'000));
    EXPECT_EQ(share->suggestedTarget().fileName(), "Quillmere-2026-11.csv");
    share->cancel();
}

} // namespace quillmere
