#include "Quillmere/controls/DatePickerModel.h"

#include <QtTest/QAbstractItemModelTester>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace quillmere {

namespace {

using platform::Calendar;
using platform::CivilDate;
using platform::Instant;
using platform::Region;
using platform::TimeZone;

/// A picker on a civil date at a number of seconds after its start, which is also the present.
class Picker {
public:
    Picker(const char* zone, const char* locale, CivilDate today, double secondsOfDay)
        : source_(Calendar(TimeZone::named(zone).value(), Region::fromLocale(locale))),
          clock_(source_.current().startOfDay(today).value() + secondsOfDay),
          model_(clock_, source_, clock_.now()) {}

    DatePickerModel& model() { return model_; }
    platform::ManualClock& clock() { return clock_; }
    void setCalendar(const char* zone, const char* locale) {
        source_.set(Calendar(TimeZone::named(zone).value(), Region::fromLocale(locale)));
    }

    int rowOf(int day) const {
        for (int row = 0; row < model_.rowCount(); ++row) {
            if (role(row, DatePickerModel::NumberRole).toInt() == day) {
                return row;
            }
        }
        return -1;
    }
    bool pick(int day) { return model_.pick(rowOf(day)); }
    bool isSelectable(int day) const {
        return role(rowOf(day), DatePickerModel::SelectableRole).toBool();
    }
    /// The days that carry the role.
    std::vector<int> days(DatePickerModel::Role wanted) const {
        std::vector<int> found;
        for (int row = 0; row < model_.rowCount(); ++row) {
            if (role(row, wanted).toBool()) {
                found.push_back(role(row, DatePickerModel::NumberRole).toInt());
            }
        }
        return found;
    }
    /// The cursor as "November 2026, 22".
    std::string cursor() const {
        const QVariant day = role(model_.cursorRow(), DatePickerModel::NumberRole);
        return (model_.monthTitle() + ", " + day.toString()).toStdString();
    }

private:
    QVariant role(int row, int role) const { return model_.data(model_.index(row), role); }

    platform::FixedCalendarSource source_;
    platform::ManualClock clock_;
    DatePickerModel model_;
    QAbstractItemModelTester tester_{&model_,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal};
};

constexpr CivilDate sunday{2026, 11, 22};
constexpr double threeOClock = 15 * 3600;

} // namespace

TEST(DatePickerModel, writesTheDayInTheRegionsEnglish) {
    EXPECT_EQ(Picker("UTC", "en_US", sunday, 0).model().text(), "Sun, Nov 22, 2026");
    EXPECT_EQ(Picker("UTC", "de_DE", sunday, 0).model().text(), "Sun, 22 Nov 2026");
    EXPECT_EQ(Picker("UTC", "en_US", sunday, 0).model().spokenText(), "Sunday, November 22, 2026");
}

TEST(DatePickerModel, beginsWeeksOnTheRegionsFirstWeekday) {
    Picker american("UTC", "en_US", sunday, 0);
    EXPECT_EQ(american.rowOf(1), 0);
    EXPECT_EQ(american.model().weekdays().first(), "Sun");
    Picker german("UTC", "de_DE", sunday, 0);
    EXPECT_EQ(german.rowOf(1), 6);
    EXPECT_EQ(german.model().weekdays().first(), "Mon");
    EXPECT_EQ(german.model().rowCount(), 6 + 30);
    EXPECT_FALSE(german.model().pick(0)) << "an empty cell";
}

TEST(DatePickerModel, offersNoFutureDay) {
    Picker picker("UTC", "en_US", sunday, threeOClock);
    EXPECT_TRUE(picker.isSelectable(22));
    EXPECT_FALSE(picker.isSelectable(23));
    EXPECT_FALSE(picker.pick(23));
    EXPECT_FALSE(picker.model().hasNextMonth());

    picker.model().moveMonths(-1);
    EXPECT_TRUE(picker.isSelectable(31));
    EXPECT_TRUE(picker.model().hasNextMonth());
    EXPECT_TRUE(picker.pick(31));
    EXPECT_EQ(picker.model().text(), "Sat, Oct 31, 2026");
}

TEST(DatePickerModel, movesTheCursorByKeys) {
    struct Row {
        const char* name;
        void (*move)(DatePickerModel&);
        const char* cursor;
    };
    Picker picker("UTC", "de_DE", {2026, 3, 31}, threeOClock);
    for (const Row& row :
         {Row{"not into the future", [](auto& m) { m.moveDays(1); }, "March 2026, 31"},
          Row{"nor a week", [](auto& m) { m.moveDays(7); }, "March 2026, 31"},
          Row{"end of a week that is not over", [](auto& m) { m.moveToWeekEnd(); },
              "March 2026, 31"},
          Row{"a shorter month", [](auto& m) { m.moveMonths(-1); }, "February 2026, 28"},
          Row{"start of the week", [](auto& m) { m.moveToWeekStart(); }, "February 2026, 23"},
          Row{"end of the week", [](auto& m) { m.moveToWeekEnd(); }, "March 2026, 1"},
          Row{"back over the month", [](auto& m) { m.moveDays(-1); }, "February 2026, 28"},
          Row{"a month later", [](auto& m) { m.moveMonths(1); }, "March 2026, 28"},
          Row{"a month that is not over", [](auto& m) { m.moveMonths(1); }, "March 2026, 31"},
          Row{"years back", [](auto& m) { m.moveMonths(-25); }, "February 2024, 29"},
          Row{"to the choice", [](auto& m) { m.showSelected(); }, "March 2026, 31"}}) {
        SCOPED_TRACE(row.name);
        row.move(picker.model());
        EXPECT_EQ(picker.cursor(), row.cursor);
    }
    EXPECT_EQ(picker.model().text(), "Tue, 31 Mar 2026") << "moving chooses nothing";
}

TEST(DatePickerModel, keepsTheTimeOfDay) {
    Picker picker("Europe/Berlin", "de_DE", sunday, threeOClock + 600.25);
    const Instant given = picker.clock().now();
    picker.model().moveMonths(-1);
    ASSERT_TRUE(picker.pick(20)); // in summer time
    EXPECT_EQ(picker.model().selected() - given, -33 * 86400.0 - 3600);
    EXPECT_THAT(picker.days(DatePickerModel::SelectedRole), testing::ElementsAre(20));
    picker.model().moveMonths(1);
    ASSERT_TRUE(picker.pick(22));
    EXPECT_EQ(picker.model().selected(), given) << "to the fraction of a second";
}

TEST(DatePickerModel, movesATimeThatDoesNotExistForwardForThatDayOnly) {
    // Half past midnight was skipped on 4 November 2018.
    Picker picker("America/Sao_Paulo", "pt_BR", {2018, 11, 10}, 1800);
    const Instant given = picker.clock().now();
    ASSERT_TRUE(picker.pick(4));
    EXPECT_EQ(picker.model().selected(), Instant{1541302200}); // 01:30 at UTC−2
    ASSERT_TRUE(picker.pick(3));
    EXPECT_EQ(picker.model().selected(), Instant{1541215800}); // 00:30 at UTC−3
    ASSERT_TRUE(picker.pick(10));
    EXPECT_EQ(picker.model().selected(), given);
}

TEST(DatePickerModel, doesNotOfferADayThatNeverWas) {
    Picker picker("Pacific/Apia", "en_US", {2011, 12, 31}, threeOClock);
    EXPECT_FALSE(picker.isSelectable(30));
    EXPECT_TRUE(picker.isSelectable(29));
    picker.model().moveDays(-1);
    EXPECT_EQ(picker.cursor(), "December 2011, 29");
    picker.model().moveDays(1);
    EXPECT_EQ(picker.cursor(), "December 2011, 31");
}

TEST(DatePickerModel, followsMidnightAndTheZone) {
    Picker picker("UTC", "en_US", sunday, threeOClock);
    EXPECT_THAT(picker.days(DatePickerModel::TodayRole), testing::ElementsAre(22));
    picker.clock().advance(10 * 3600);
    picker.model().refresh();
    EXPECT_THAT(picker.days(DatePickerModel::TodayRole), testing::ElementsAre(23));
    EXPECT_THAT(picker.days(DatePickerModel::SelectedRole), testing::ElementsAre(22));
    EXPECT_TRUE(picker.isSelectable(23));

    picker.setCalendar("America/New_York", "de_DE");
    picker.model().refresh();
    EXPECT_THAT(picker.days(DatePickerModel::TodayRole), testing::ElementsAre(22));
    EXPECT_FALSE(picker.isSelectable(23));
    EXPECT_EQ(picker.rowOf(1), 6);
}

} // namespace quillmere
