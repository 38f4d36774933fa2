#pragma once

#include "Platform/calendar/DateText.h"
#include "Quillmere/composer/TransactionComposerMode.h"
#include "Quillmere/composer/TransactionComposerViewModel.h"
#include "Quillmere/dashboard/BalanceSummary.h"
#include "Quillmere/dashboard/RecentActivityModel.h"
#include "Quillmere/dashboard/UndoOffer.h"
#include "Quillmere/shell/LedgerBalance.h"
#include "QuillmereKit/calculation/BalanceTrendRange.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QUrl>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <span>

namespace platform {
class Preferences;
}

namespace quillmere {

/// The overview: the balance now, today's change, the balance over the last days, the latest
/// changes, and the offer to undo the change just recorded. Made when the screen is shown, gone
/// with it. Main thread.
///
/// The figures follow the records, the settings, the range and the time: they move at midnight,
/// with clock and zone, and when a change dated in the future comes due. While the history is being
/// read the balance is summed in the store and everything else is left out.
class DashboardViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::BalanceSummary summary READ summary NOTIFY summaryChanged)
    /// Balances in seconds, one a day, oldest first; empty while the history is being read.
    Q_PROPERTY(QList<double> trend READ trend NOTIFY trendChanged)
    Q_PROPERTY(QString trendSpoken READ trendSpoken NOTIFY trendChanged)
    Q_PROPERTY(int trendRangeDays READ trendRangeDays NOTIFY trendRangeChanged)
    Q_PROPERTY(int trendRangeIndex READ trendRangeIndex NOTIFY trendRangeChanged)
    Q_PROPERTY(QList<QString> trendRangeTitles READ trendRangeTitles CONSTANT)
    Q_PROPERTY(quillmere::RecentActivityModel* recentItems READ recentItems CONSTANT)
    Q_PROPERTY(bool hasActivity READ hasActivity NOTIFY hasActivityChanged)
    /// The link to the screen with all changes; empty when it cannot be formed.
    Q_PROPERTY(QUrl historyURL READ historyURL CONSTANT)
    Q_PROPERTY(quillmere::UndoOffer* undoOffer READ undoOffer CONSTANT)
    /// The form being shown, or null.
    Q_PROPERTY(quillmere::TransactionComposerViewModel* activeComposer READ activeComposer NOTIFY
                   activeComposerChanged)

public:
    /// Day count of the chosen range in the standard preferences.
    static constexpr std::string_view trendRangeKey = "overview.balanceTrendRangeDays";

    /// All references must outlive the object.
    DashboardViewModel(StoreSession& session, AppState& appState,
                       platform::Preferences& preferences, std::unique_ptr<Countdown> undoCountdown,
                       QObject* parent = nullptr);
    ~DashboardViewModel() override;

    [[nodiscard]] const BalanceSummary& summary() const { return summary_; }
    [[nodiscard]] const QList<double>& trend() const { return trend_; }
    [[nodiscard]] QString trendSpoken() const;
    [[nodiscard]] int trendRangeDays() const { return dayCount(range_); }
    [[nodiscard]] int trendRangeIndex() const;
    [[nodiscard]] static QList<QString> trendRangeTitles();
    [[nodiscard]] RecentActivityModel* recentItems() { return &recentItems_; }
    [[nodiscard]] bool hasActivity() const { return hasActivity_; }
    [[nodiscard]] static QUrl historyURL();
    [[nodiscard]] UndoOffer* undoOffer() { return &undoOffer_; }
    [[nodiscard]] TransactionComposerViewModel* activeComposer() const { return composer_.get(); }

    /// Shows and remembers the range at this position of `trendRangeTitles`.
    Q_INVOKABLE void chooseTrendRange(int index);

    /// Open a new form. What it saves is offered to be undone.
    Q_INVOKABLE void addTime();
    Q_INVOKABLE void takeFlexTime();
    /// Called when the form is no longer shown.
    Q_INVOKABLE void closeComposer();

signals:
    void summaryChanged();
    void trendChanged();
    void trendRangeChanged();
    void hasActivityChanged();
    void activeComposerChanged();

private:
    void openComposer(TransactionComposerMode mode);
    void onSaved(BalanceAdjustment& transaction);
    void onTimeChanged();
    void updateFigures();
    void updateSummary();
    void updateTrend();
    void updateRecent();

    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] std::span<const LedgerRow> rows() const;
    [[nodiscard]] const BalanceAdjustment* recordOf(const LedgerRow& row) const;

    StoreSession& session_;
    AppState& appState_;
    platform::Preferences& preferences_;
    platform::DateText dates_;
    LedgerBalance balance_;
    UndoOffer undoOffer_;
    std::unique_ptr<TransactionComposerViewModel> composer_;
    RecentActivityModel recentItems_;
    BalanceSummary summary_;
    QList<double> trend_;
    BalanceTrendRange range_;
    bool hasActivity_ = false;
};

} // namespace quillmere
