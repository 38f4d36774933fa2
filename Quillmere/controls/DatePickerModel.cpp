#include "Quillmere/controls/DatePickerModel.h"

#include "Platform/calendar/RegionMonths.h"

#include <algorithm>

namespace quillmere {

namespace {

using platform::CivilDate;
using platform::DateStyle;
using platform::Instant;
using platform::MonthGrid;

constexpr int daysPerWeek = 7;

QVariant emptyCell(int role) {
    switch (role) {
    case DatePickerModel::NumberRole:
        return 0;
    case DatePickerModel::SpokenRole:
        return QString();
    case DatePickerModel::SelectableRole:
    case DatePickerModel::SelectedRole:
    case DatePickerModel::TodayRole:
        return false;
    default:
        return {};
    }
}

} // namespace

DatePickerModel::DatePickerModel(const platform::Clock& clock,
                                 const platform::CalendarSource& calendars, Instant selected,
                                 QObject* parent)
    : QAbstractListModel(parent),
      clock_(clock),
      calendars_(calendars),
      calendar_(calendars.current()),
      dates_(calendar_),
      given_(selected),
      selected_(selected),
      cursor_(calendar_.startOfDay(selected)),
      month_(calendar_, calendar_.civilDate(selected)) {
}

QString DatePickerModel::text() const {
    return QString::fromStdString(dates_.text(selected_, DateStyle::weekdayDayYear));
}

QString DatePickerModel::spokenText() const {
    return QString::fromStdString(dates_.text(selected_, DateStyle::fullDay));
}

QString DatePickerModel::monthTitle() const {
    return QString::fromStdString(dates_.text(month_.first(), DateStyle::monthYear));
}

bool DatePickerModel::hasNextMonth() const {
    const CivilDate next = platform::addingMonths(calendar_.region(), month_.first(), 1);
    return next <= calendar_.civilDate(today());
}

QStringList DatePickerModel::weekdays() const {
    QStringList names;
    for (const int weekday : platform::weekdayColumns(calendar_)) {
        names << QString::fromStdString(dates_.weekdayName(weekday, DateStyle::shortWeekday));
    }
    return names;
}

int DatePickerModel::cursorRow() const {
    const CivilDate date = calendar_.civilDate(cursor_);
    return month_.leadingBlanks() + platform::dayOfMonth(calendar_.region(), date) - 1;
}

void DatePickerModel::showSelected() {
    setCursor(calendar_.startOfDay(selected_));
}

void DatePickerModel::moveDays(int days) {
    const auto moved = calendar_.addingDays(cursor_, days);
    if (moved && calendar_.startOfDay(*moved) <= today()) {
        setCursor(calendar_.startOfDay(*moved));
    }
}

void DatePickerModel::moveMonths(int months) {
    CivilDate date =
        platform::addingMonths(calendar_.region(), calendar_.civilDate(cursor_), months);
    auto start = calendar_.startOfDay(date);
    // A zone may have skipped the very day.
    while (!start && date.day > 1) {
        --date.day;
        start = calendar_.startOfDay(date);
    }
    if (start) {
        setCursor(std::min(*start, today()));
    }
}

void DatePickerModel::moveToWeekStart() {
    moveDays(-cursorColumn());
}

void DatePickerModel::moveToWeekEnd() {
    const Instant last = today();
    for (int days = daysPerWeek - 1 - cursorColumn(); days > 0; --days) {
        const auto moved = calendar_.addingDays(cursor_, days);
        if (moved && calendar_.startOfDay(*moved) <= last) {
            return setCursor(calendar_.startOfDay(*moved));
        }
    }
}

bool DatePickerModel::pick(int row) {
    const MonthGrid::Day* day = dayAt(row);
    if (day == nullptr || !isSelectable(*day)) {
        return false;
    }
    setCursor(*day->start);
    const auto days =
        platform::daysSince1970(day->date) - platform::daysSince1970(calendar_.civilDate(given_));
    const auto moved = calendar_.addingDays(given_, static_cast<int>(days));
    selected_ = moved.value_or(*day->start);
    emit selectedChanged();
    emit dataChanged(index(0), index(rowCount() - 1), {SelectedRole});
    return true;
}

int DatePickerModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : month_.leadingBlanks() + static_cast<int>(month_.days().size());
}

QVariant DatePickerModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    if (const MonthGrid::Day* day = dayAt(index.row())) {
        return dayData(*day, role);
    }
    return emptyCell(role);
}

QVariant DatePickerModel::dayData(const MonthGrid::Day& day, int role) const {
    switch (role) {
    case NumberRole:
        return platform::dayOfMonth(calendar_.region(), day.date);
    case SpokenRole:
        return QString::fromStdString(dates_.text(day.date, DateStyle::fullDay));
    case SelectableRole:
        return isSelectable(day);
    case SelectedRole:
        return day.date == calendar_.civilDate(selected_);
    case TodayRole:
        return day.date == calendar_.civilDate(today());
    default:
        return {};
    }
}

QHash<int, QByteArray> DatePickerModel::roleNames() const {
    return {{NumberRole, "number"},
            {SpokenRole, "spoken"},
            {SelectableRole, "selectable"},
            {SelectedRole, "selected"},
            {TodayRole, "today"}};
}

void DatePickerModel::refresh() {
    calendar_ = calendars_.current();
    dates_ = platform::DateText(calendar_);
    cursor_ = std::min(calendar_.startOfDay(cursor_), today());
    resetMonth();
    emit selectedChanged();
    emit cursorRowChanged();
}

Instant DatePickerModel::today() const {
    return calendar_.startOfDay(clock_.now());
}

const MonthGrid::Day* DatePickerModel::dayAt(int row) const {
    const int day = row - month_.leadingBlanks();
    const auto& days = month_.days();
    return day >= 0 && day < static_cast<int>(days.size()) ? &days[static_cast<std::size_t>(day)]
                                                           : nullptr;
}

bool DatePickerModel::isSelectable(const MonthGrid::Day& day) const {
    return day.start && *day.start <= today();
}

int DatePickerModel::cursorColumn() const {
    return cursorRow() % daysPerWeek;
}

void DatePickerModel::setCursor(Instant startOfDay) {
    if (cursor_ == startOfDay) {
        return;
    }
    cursor_ = startOfDay;
    const CivilDate date = calendar_.civilDate(cursor_);
    if (platform::firstOfMonth(calendar_.region(), date) != month_.first()) {
        resetMonth();
    }
    emit cursorRowChanged();
}

void DatePickerModel::resetMonth() {
    beginResetModel();
    month_ = MonthGrid(calendar_, calendar_.civilDate(cursor_));
    endResetModel();
    emit monthChanged();
}

} // namespace quillmere
