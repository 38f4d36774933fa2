#include "Quillmere/reports/ReportDaysModel.h"

#include "QuillmereKit/reports/ReportGranularity.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <gtest/gtest.h>

namespace quillmere {

namespace {

using platform::Calendar;
using platform::CivilDate;

class ReportDaysModelTest : public testing::Test {
protected:
    /// Shows the days of a period; on the given day of the month the sum is an hour.
    void show(CivilDate date, ReportGranularity granularity, int changedDay = 0) {
        const platform::DateInterval interval =
            period(granularity, calendar_.startOfDay(date).value(), calendar_);
        std::vector<DayBalance> days;
        for (platform::Instant day = interval.start; day < interval.end;
             day = calendar_.startOfDay(*calendar_.addingDays(day, 1))) {
            const bool changed = calendar_.civilDate(day).day == changedDay;
            days.push_back({.date = day, .adjustmentSeconds = changed ? 3600.0 : 0});
        }
        model_.setDays(days, calendar_, calendar_.startOfDay(CivilDate{2026, 11, 22}).value());
    }

    [[nodiscard]] QVariant at(int row, int role) const {
        return model_.data(model_.index(row), role);
    }
    [[nodiscard]] int numberAtCursor() const {
        return at(model_.cursorRow(), ReportDaysModel::NumberRole).toInt();
    }

    Calendar calendar_{platform::TimeZone::named("America/Sao_Paulo").value(),
                       platform::Region::fromLocale("de_DE")};
    ReportDaysModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

constexpr auto ofAWeek = ReportGranularity::week;
constexpr auto ofAMonth = ReportGranularity::month;

} // namespace

TEST_F(ReportDaysModelTest, PutsEachDayUnderItsWeekday) {
    const struct {
        const char* name;
        CivilDate date;
        ReportGranularity granularity;
        int blanks;
        int rows;
    } cases[] = {
        {"November from a Sunday", {2026, 11, 5}, ofAMonth, 6, 36},
        {"a February of four weeks", {2021, 2, 5}, ofAMonth, 0, 28},
        {"a week", {2026, 11, 5}, ofAWeek, 0, 7},
        {"a month with a day without midnight", {2018, 11, 5}, ofAMonth, 3, 33},
        {"nothing before the first again", {2026, 6, 30}, ofAMonth, 0, 30},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        show(one.date, one.granularity);
        ASSERT_EQ(model_.rowCount(), one.rows);
        for (int row = 0; row < one.rows; ++row) {
            const int number = at(row, ReportDaysModel::NumberRole).toInt();
            EXPECT_EQ(number, row < one.blanks              ? 0
                              : one.granularity == ofAMonth ? row - one.blanks + 1
                                                            : row + 2);
        }
    }
}

TEST_F(ReportDaysModelTest, SaysWhatADayIs) {
    show({2026, 11, 1}, ofAMonth, 22);
    const auto text = [&](int role) { return at(6 + 21, role).toString().toStdString(); };
    // The comma after the weekday comes and goes with ICU's data.
    EXPECT_TRUE(text(ReportDaysModel::SpokenDateRole).starts_with("Sunday"));
    EXPECT_TRUE(text(ReportDaysModel::SpokenDateRole).ends_with(" 22 November 2026"));
    EXPECT_EQ(text(ReportDaysModel::AmountTextRole), "1:00");
    EXPECT_EQ(text(ReportDaysModel::SignedTextRole), "+1:00");
    EXPECT_EQ(text(ReportDaysModel::SpokenAmountRole), "plus 1 hours, 0 minutes");
    EXPECT_TRUE(at(6 + 21, ReportDaysModel::TodayRole).toBool());
    EXPECT_FALSE(at(6 + 20, ReportDaysModel::TodayRole).toBool());
    EXPECT_EQ(at(6 + 20, ReportDaysModel::SpokenAmountRole).toString(), "No change");
    EXPECT_TRUE(model_.changedDay(6 + 21).has_value());
    for (const int row : {-1, 0, 6 + 20, model_.rowCount()}) {
        EXPECT_FALSE(model_.changedDay(row).has_value()) << row;
    }
}

TEST_F(ReportDaysModelTest, KeepsTheCursorInThePeriod) {
    show({2026, 10, 1}, ofAMonth);
    model_.setCursor(calendar_.startOfDay(CivilDate{2026, 10, 31}).value());
    QSignalSpy moved(&model_, &ReportDaysModel::cursorRowChanged);
    show({2026, 11, 1}, ofAMonth);
    EXPECT_EQ(numberAtCursor(), 30);
    EXPECT_EQ(moved.count(), 1);
    show({2026, 11, 1}, ofAMonth, 3);
    EXPECT_EQ(moved.count(), 1);
    const struct {
        const char* name;
        int days;
        int number;
    } moves[] = {{"past the end", 1, 30},
                 {"a week back", -7, 23},
                 {"a day back", -1, 22},
                 {"past the start", -28, 22}};
    for (const auto& move : moves) {
        SCOPED_TRACE(move.name);
        model_.moveDays(move.days);
        EXPECT_EQ(numberAtCursor(), move.number);
    }
    model_.moveToWeekStart();
    EXPECT_EQ(numberAtCursor(), 16);
    model_.moveToWeekEnd();
    EXPECT_EQ(numberAtCursor(), 22);
    model_.moveDays(8);
    model_.moveToWeekEnd();
    EXPECT_EQ(numberAtCursor(), 30);
    model_.moveDays(-29);
    model_.moveToWeekStart();
    EXPECT_EQ(numberAtCursor(), 1);
}

TEST_F(ReportDaysModelTest, UpdatesOnlyFromTheFirstDayThatDiffers) {
    show({2026, 11, 1}, ofAMonth);
    QSignalSpy changed(&model_, &ReportDaysModel::dataChanged);
    show({2026, 11, 1}, ofAMonth);
    EXPECT_EQ(changed.count(), 0);
    show({2026, 11, 1}, ofAMonth, 20);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 6 + 19);
    model_.setDays({}, calendar_, platform::Instant{});
    EXPECT_EQ(model_.rowCount(), 0);
    EXPECT_EQ(model_.cursorRow(), -1);
    model_.moveToWeekEnd();
    model_.moveDays(1);
    EXPECT_EQ(model_.cursorRow(), -1);
}

} // namespace quillmere
