#include "Quillmere/dashboard/DashboardViewModel.h"

#include "Platform/preferences/Preferences.h"
#include "Platform/store/Context.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/calculation/BalanceTrend.h"
#include "QuillmereKit/calculation/LedgerActivity.h"
#include "QuillmereKit/navigation/AppRoute.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <algorithm>
#include <utility>

namespace quillmere {

DashboardViewModel::DashboardViewModel(StoreSession& session, AppState& appState,
                                       platform::Preferences& preferences,
                                       std::unique_ptr<Countdown> undoCountdown, QObject* parent)
    : QObject(parent),
      session_(session),
      appState_(appState),
      preferences_(preferences),
      dates_(session.time().current()),
      balance_(session),
      undoOffer_(session, appState, std::move(undoCountdown)),
      range_(BalanceTrendRanges::fromDayCount(
          preferences.number(trendRangeKey).value_or(dayCount(BalanceTrendRange::month)))) {
    connect(&session_, &StoreSession::adjustmentsChanged, this, &DashboardViewModel::updateRecent);
    connect(&session_.time(), &TimeFollower::changed, this, &DashboardViewModel::onTimeChanged);
    connect(&balance_, &LedgerBalance::updated, this, &DashboardViewModel::updateFigures);
    updateFigures();
    updateRecent();
}

DashboardViewModel::~DashboardViewModel() = default;

QString DashboardViewModel::trendSpoken() const {
    return trend_.isEmpty() ? QString()
                            : QString::fromStdString(DurationFormatting::accessible(trend_.last()));
}

int DashboardViewModel::trendRangeIndex() const {
    const auto& all = BalanceTrendRanges::all;
    return static_cast<int>(std::find(all.begin(), all.end(), range_) - all.begin());
}

QList<QString> DashboardViewModel::trendRangeTitles() {
    QList<QString> titles;
    for (const BalanceTrendRange range : BalanceTrendRanges::all) {
        titles.append(QString::fromUtf8(title(range)));
    }
    return titles;
}

QUrl DashboardViewModel::historyURL() {
    return QUrl(QString::fromStdString(url(AppRoute::history)), QUrl::StrictMode);
}

void DashboardViewModel::chooseTrendRange(int index) {
    const BalanceTrendRange range = BalanceTrendRanges::all.at(static_cast<std::size_t>(index));
    preferences_.setNumber(trendRangeKey, dayCount(range));
    if (std::exchange(range_, range) != range) {
        emit trendRangeChanged();
        updateTrend();
    }
}

void DashboardViewModel::addTime() {
    openComposer(TransactionComposerMode::add);
}

void DashboardViewModel::takeFlexTime() {
    openComposer(TransactionComposerMode::take);
}

void DashboardViewModel::openComposer(TransactionComposerMode mode) {
    if (composer_) {
        return;
    }
    composer_ = std::make_unique<TransactionComposerViewModel>(
        session_, appState_, mode,
        [this](BalanceAdjustment& transaction) { onSaved(transaction); });
    emit activeComposerChanged();
}

// The form may be closing from within its own save.
void DashboardViewModel::closeComposer() {
    if (auto closed = std::exchange(composer_, nullptr)) {
        emit activeComposerChanged();
        closed.release()->deleteLater();
    }
}

void DashboardViewModel::onSaved(BalanceAdjustment& transaction) {
    undoOffer_.offer(transaction);
}

void DashboardViewModel::onTimeChanged() {
    dates_ = platform::DateText(session_.time().current());
    updateRecent();
}

void DashboardViewModel::updateFigures() {
    updateSummary();
    updateTrend();
}

void DashboardViewModel::updateSummary() {
    std::optional<double> today;
    if (!isLoading()) {
        today =
            LedgerActivity::secondsToday(rows(), session_.time().now(), session_.time().current());
    }
    const BalanceSummary summary = BalanceSummary::of(balance_.seconds(), today);
    if (summary != summary_) {
        summary_ = summary;
        emit summaryChanged();
    }
}

void DashboardViewModel::updateTrend() {
    QList<double> trend;
    if (!isLoading()) {
        const auto series = BalanceTrend::series(rows(), balance_.startingBalanceMinutes(), range_,
                                                 session_.time().now(), session_.time().current());
        trend = QList<double>(series.begin(), series.end());
    }
    if (trend != trend_) {
        trend_ = std::move(trend);
        emit trendChanged();
    }
}

void DashboardViewModel::updateRecent() {
    std::vector<RecentActivityModel::Item> items;
    for (const LedgerRow& row : LedgerActivity::recentItems(rows())) {
        if (const BalanceAdjustment* record = recordOf(row)) {
            items.push_back({record, LedgerTransaction::of(*record, dates_)});
        }
    }
    const bool hasActivity = !items.empty();
    recentItems_.setItems(std::move(items));
    if (std::exchange(hasActivity_, hasActivity) != hasActivity) {
        emit hasActivityChanged();
    }
}

bool DashboardViewModel::isLoading() const {
    return session_.isLoading();
}

std::span<const LedgerRow> DashboardViewModel::rows() const {
    return isLoading() ? std::span<const LedgerRow>() : session_.adjustments().rows();
}

// A row whose record cannot be read is left out; the next publication tries again.
const BalanceAdjustment* DashboardViewModel::recordOf(const LedgerRow& row) const {
    try {
        return session_.context().find<BalanceAdjustment>(row.ref);
    } catch (const platform::store::StoreError&) {
        return nullptr;
    }
}

} // namespace quillmere
