#include "Quillmere/reports/ReportsViewModel.h"

#include "Platform/calendar/MonthGrid.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/reports/TimeBankReporting.h"

#include <algorithm>
#include <utility>

namespace quillmere {

using platform::DateStyle;

namespace {

FileShare::Prepare exportOf(const ReportsViewModel& model, const platform::UserFolders& folders) {
    return [&model, &folders]() -> FileShare::Write {
        return [report = model.csvExport(), temporary = folders.temporary(temporaryFolderName)] {
            return ExportedFile{report.write(temporary), {}, {}};
        };
    };
}

} // namespace

ReportsViewModel::ReportsViewModel(StoreSession& session, AppState& appState,
                                   const platform::UserFolders& folders, QObject* parent)
    : QObject(parent),
      session_(session),
      anchor_(session.time().now()),
      calendar_(session.time().current()),
      dates_(calendar_),
      csvShare_(exportOf(*this, folders), tr("Exporting CSV"), appState) {
    changedDays_.setSourceModel(&days_);
    changedDays_.setFilterRole(ReportDaysModel::ChangedRole);
    changedDays_.setFilterFixedString(QStringLiteral("true"));
    connect(&session_, &StoreSession::adjustmentsChanged, this, &ReportsViewModel::update);
    connect(&session_.time(), &TimeFollower::changed, this, &ReportsViewModel::onTimeChanged);
    update();
    days_.setCursor(anchor_);
}

ReportsViewModel::~ReportsViewModel() = default;

QString ReportsViewModel::periodTitle() const {
    if (granularity_ == ReportGranularity::month) {
        return QString::fromStdString(dates_.text(anchor_, DateStyle::monthYear));
    }
    return QString::fromStdString(dates_.text(interval_.start, DateStyle::day) + "\u2013" +
                                  dates_.text(interval_.end - 1, DateStyle::dayYear));
}

QString ReportsViewModel::periodWord() const {
    return granularity_ == ReportGranularity::month ? tr("month") : tr("week");
}

bool ReportsViewModel::hasNextPeriod() const {
    return interval_.end <= session_.time().now();
}

QList<QString> ReportsViewModel::weekdays() const {
    QList<QString> names;
    for (const int weekday : platform::weekdayColumns(calendar_)) {
        names.append(QString::fromStdString(dates_.weekdayName(weekday, DateStyle::shortWeekday)));
    }
    return names;
}

bool ReportsViewModel::isLoading() const {
    return session_.isLoading();
}

bool ReportsViewModel::isEmpty() const {
    return !isLoading() && changedDays_.rowCount() == 0;
}

ReportCSVExport ReportsViewModel::csvExport() const {
    const bool isMonth = granularity_ == ReportGranularity::month;
    const std::string date =
        dates_.text(interval_.start, isMonth ? DateStyle::fixedMonth : DateStyle::fixedDay);
    return {TimeBankReporting::ledgerCSV(rows(), interval_, calendar_),
            "Quillmere-" + date + ".csv"};
}

void ReportsViewModel::chooseGranularity(int index) {
    granularity_ = ReportGranularities::all.at(static_cast<std::size_t>(index));
    update();
    days_.setCursor(anchor_);
}

void ReportsViewModel::showPreviousPeriod() {
    moveAnchor(-1);
}

void ReportsViewModel::showNextPeriod() {
    if (hasNextPeriod()) {
        moveAnchor(1);
    }
}

void ReportsViewModel::moveAnchor(int periods) {
    if (const auto moved = addingPeriods(granularity_, anchor_, periods, calendar_)) {
        anchor_ = std::min(*moved, session_.time().now());
        update();
    }
}

void ReportsViewModel::requestDay(int row) {
    const auto date = days_.changedDay(row);
    if (date && !selectedDay_) {
        days_.setCursor(*date);
        selectedDay_ = std::make_unique<SelectedLedgerDay>(session_, *date);
        emit selectedDayChanged();
    }
}

// The sheet may be closing from within a signal of the day.
void ReportsViewModel::closeDay() {
    if (auto closed = std::exchange(selectedDay_, nullptr)) {
        emit selectedDayChanged();
        closed.release()->deleteLater();
    }
}

void ReportsViewModel::onTimeChanged() {
    calendar_ = session_.time().current();
    dates_ = platform::DateText(calendar_);
    update();
}

void ReportsViewModel::update() {
    interval_ = period(granularity_, anchor_, calendar_);
    const TimeBankReport report = TimeBankReporting::report(
        TimeBankCalculator::ledgerDayBalances(rows(), interval_, calendar_), anchor_, granularity_,
        calendar_);
    const LedgerTotals totals = TimeBankReporting::ledgerTotals(rows(), interval_);
    figures_ = isLoading() ? LedgerFigures::unknown()
                           : LedgerFigures::of(totals.addedSeconds, totals.subtractedSeconds,
                                               report.balanceSeconds());
    days_.setDays(report.days, calendar_, session_.time().now());
    emit changed();
}

std::span<const LedgerRow> ReportsViewModel::rows() const {
    return session_.adjustments().rows();
}

} // namespace quillmere
