#include "Quillmere/shell/LedgerBalance.h"

#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quillmere {

using platform::Instant;

LedgerBalance::LedgerBalance(StoreSession& session, QObject* parent)
    : QObject(parent), session_(session), nextChange_(session.time().clock()) {
    connect(&session_, &StoreSession::adjustmentsChanged, this, &LedgerBalance::update);
    connect(&session_, &StoreSession::settingsChanged, this, &LedgerBalance::onSettingsChanged);
    connect(&session_, &StoreSession::refreshed, this, &LedgerBalance::onRefreshed);
    connect(&session_.time(), &TimeFollower::changed, this, &LedgerBalance::update);
    connect(&nextChange_, &InstantTimer::fired, this, &LedgerBalance::update);
    update();
}

LedgerBalance::~LedgerBalance() = default;

QString LedgerBalance::text() const {
    return QString::fromStdString(DurationFormatting::clock(seconds_, true));
}

QString LedgerBalance::spoken() const {
    return QString::fromStdString(DurationFormatting::accessible(seconds_));
}

void LedgerBalance::update() {
    startingBalance_ = storedStartingBalance();
    const bool isLoading = session_.isLoading();
    const auto rows = isLoading ? std::span<const LedgerRow>() : session_.adjustments().rows();
    const double seconds = isLoading ? secondsInStore()
                                     : TimeBankCalculator::ledgerBalanceSeconds(
                                           rows, startingBalance_, session_.time().now());
    scheduleNextChange(rows);
    if (std::exchange(seconds_, seconds) != seconds) {
        emit changed();
    }
    emit updated();
}

void LedgerBalance::onSettingsChanged() {
    if (storedStartingBalance() != startingBalance_) {
        update();
    }
}

// No live query tells of records before the history is there.
void LedgerBalance::onRefreshed() {
    if (session_.isLoading()) {
        update();
    }
}

// Rows are newest first, so those still to come stand at the front, the next one last of them.
void LedgerBalance::scheduleNextChange(std::span<const LedgerRow> rows) {
    const Instant now = session_.time().now();
    const auto due = std::partition_point(rows.begin(), rows.end(),
                                          [&](const LedgerRow& row) { return row.date > now; });
    if (due == rows.begin()) {
        nextChange_.cancel();
    } else {
        nextChange_.schedule(std::prev(due)->date);
    }
}

std::int64_t LedgerBalance::storedStartingBalance() const {
    const TimeBankSettings* settings = session_.settingsRecord();
    return settings ? settings->startingBalanceMinutes()
                    : TimeBankSettingsValues{}.startingBalanceMinutes;
}

double LedgerBalance::secondsInStore() const {
    try {
        const std::int64_t minutes = session_.minutesInStore();
        return static_cast<double>(startingBalance_) * 60 + static_cast<double>(minutes) * 60;
    } catch (const platform::store::StoreError&) {
        return std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace quillmere
