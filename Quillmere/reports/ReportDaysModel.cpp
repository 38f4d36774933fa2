#include "Quillmere/reports/ReportDaysModel.h"

#include "Platform/calendar/RegionMonths.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using platform::Calendar;
using platform::DateStyle;
using platform::Instant;

constexpr int columns = 7;

int leadingBlanks(std::span<const DayBalance> days, const Calendar& calendar) {
    return days.empty()
               ? 0
               : (calendar.weekday(days.front().date) - calendar.firstWeekday() + columns) %
                     columns;
}

} // namespace

void ReportDaysModel::setDays(std::span<const DayBalance> days, const Calendar& calendar,
                              Instant now) {
    const int row = cursorRow();
    if (calendar_ != calendar) {
        calendar_ = calendar;
        dates_.emplace(calendar);
    }
    blanks_ = leadingBlanks(days, calendar);
    setCells(cellsOf(days, calendar, now));
    place_ = std::clamp(place_, 0, std::max(0, rowCount() - blanks_ - 1));
    if (cursorRow() != row) {
        emit cursorRowChanged();
    }
}

std::vector<ReportDaysModel::Cell> ReportDaysModel::cellsOf(std::span<const DayBalance> days,
                                                            const Calendar& calendar, Instant now) {
    std::vector<Cell> cells(static_cast<std::size_t>(leadingBlanks(days, calendar)));
    for (const DayBalance& day : days) {
        cells.push_back(
            {.date = day.date,
             .seconds = day.adjustmentSeconds,
             .number = platform::dayOfMonth(calendar.region(), calendar.civilDate(day.date)),
             .isToday = calendar.isSameDay(day.date, now)});
    }
    return cells;
}

void ReportDaysModel::setCells(std::vector<Cell> cells) {
    const int held = rowCount();
    const int count = static_cast<int>(cells.size());
    if (count < held) {
        beginRemoveRows({}, count, held - 1);
        cells_.resize(cells.size());
        endRemoveRows();
    } else if (count > held) {
        beginInsertRows({}, held, count - 1);
        cells_.insert(cells_.end(), cells.begin() + held, cells.end());
        endInsertRows();
    }
    const auto [first, unused] = std::mismatch(cells_.begin(), cells_.end(), cells.begin());
    const int row = static_cast<int>(first - cells_.begin());
    cells_ = std::move(cells);
    if (row < std::min(held, count)) {
        emit dataChanged(index(row), index(std::min(held, count) - 1));
    }
}

void ReportDaysModel::setCursor(Instant instant) {
    const auto found = std::find_if(cells_.begin(), cells_.end(), [&](const Cell& cell) {
        return cell.number > 0 && calendar_->isSameDay(cell.date, instant);
    });
    if (found != cells_.end()) {
        moveTo(static_cast<int>(found - cells_.begin()) - blanks_);
    }
}

int ReportDaysModel::cursorRow() const {
    return cells_.empty() ? -1 : blanks_ + place_;
}

std::optional<Instant> ReportDaysModel::changedDay(int row) const {
    if (row < blanks_ || row >= rowCount()) {
        return std::nullopt;
    }
    const Cell& cell = cells_[static_cast<std::size_t>(row)];
    return cell.seconds == 0 ? std::nullopt : std::optional(cell.date);
}

void ReportDaysModel::moveDays(int days) {
    if (const int place = place_ + days; place >= 0 && place < rowCount() - blanks_) {
        moveTo(place);
    }
}

void ReportDaysModel::moveToWeekStart() {
    const int row = cursorRow();
    moveTo(std::max(row - row % columns, blanks_) - blanks_);
}

void ReportDaysModel::moveToWeekEnd() {
    const int row = cursorRow();
    moveTo(std::min(row - row % columns + columns, rowCount()) - 1 - blanks_);
}

void ReportDaysModel::moveTo(int place) {
    if (std::exchange(place_, place) != place) {
        emit cursorRowChanged();
    }
}

int ReportDaysModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

QVariant ReportDaysModel::data(const QModelIndex& index, int role) const {
    if (role < RowRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Cell& cell = cells_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case RowRole:
        return index.row();
    case NumberRole:
        return cell.number;
    case ChangedRole:
        return cell.seconds != 0;
    case TakesTimeRole:
        return cell.seconds < 0;
    case TodayRole:
        return cell.isToday;
    default:
        return cell.number > 0 ? dayData(cell, role) : QString();
    }
}

QVariant ReportDaysModel::dayData(const Cell& cell, int role) const {
    switch (role) {
    case DateTextRole:
        return QString::fromStdString(dates_->text(cell.date, DateStyle::weekdayDay));
    case SpokenDateRole:
        return QString::fromStdString(dates_->text(cell.date, DateStyle::fullDay));
    case AmountTextRole:
        return QString::fromStdString(DurationFormatting::clock(cell.seconds, false));
    case SignedTextRole:
        return QString::fromStdString(DurationFormatting::clock(cell.seconds, true));
    case SpokenAmountRole:
        return cell.seconds == 0
                   ? tr("No change")
                   : QString::fromStdString(DurationFormatting::accessible(cell.seconds));
    default:
        return {};
    }
}

QHash<int, QByteArray> ReportDaysModel::roleNames() const {
    return {{RowRole, "row"},
            {NumberRole, "number"},
            {ChangedRole, "changed"},
            {TakesTimeRole, "takesTime"},
            {TodayRole, "today"},
            {DateTextRole, "dateText"},
            {SpokenDateRole, "spokenDate"},
            {AmountTextRole, "amountText"},
            {SignedTextRole, "signedText"},
            {SpokenAmountRole, "spokenAmount"}};
}

} // namespace quillmere
