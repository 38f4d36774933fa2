#pragma once

#include "Platform/calendar/DateText.h"
#include "Platform/files/UserFolders.h"
#include "Quillmere/reports/LedgerFigures.h"
#include "Quillmere/reports/ReportCSVExport.h"
#include "Quillmere/reports/ReportDaysModel.h"
#include "Quillmere/reports/SelectedLedgerDay.h"
#include "Quillmere/share/FileShare.h"
#include "QuillmereKit/records/LedgerRow.h"
#include "QuillmereKit/reports/ReportGranularity.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSortFilterProxyModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <span>

namespace quillmere {

class AppState;
class StoreSession;

/// The "Calendar" route: one week or month of days, its totals, its changed days, one of them
/// opened, and its export. Made when the screen is shown, gone with it, so it always begins with
/// the present month. Main thread.
///
/// Everything follows the records, and midnight, clock and zone. While the history is being read
/// the days are there without amounts, and nothing is called empty.
class ReportsViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// 0 for weeks, 1 for months.
    Q_PROPERTY(int granularityIndex READ granularityIndex NOTIFY changed)
    Q_PROPERTY(QString periodTitle READ periodTitle NOTIFY changed)
    Q_PROPERTY(QString periodTitleInLowerCase READ periodTitleInLowerCase NOTIFY changed)
    /// "week" or "month".
    Q_PROPERTY(QString periodWord READ periodWord NOTIFY changed)
    /// False while the period reaches beyond the present moment.
    Q_PROPERTY(bool hasNextPeriod READ hasNextPeriod NOTIFY changed)
    Q_PROPERTY(quillmere::LedgerFigures figures READ figures NOTIFY changed)
    /// The names of the grid's columns.
    Q_PROPERTY(QList<QString> weekdays READ weekdays NOTIFY changed)
    Q_PROPERTY(quillmere::ReportDaysModel* days READ days CONSTANT)
    /// Those of `days` that are changed, with the same roles.
    Q_PROPERTY(QAbstractItemModel* changedDays READ changedDays CONSTANT)
    /// The history is being read.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY changed)
    /// The history is there and the period has no changed day.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY changed)
    Q_PROPERTY(quillmere::FileShare* csvShare READ csvShare CONSTANT)
    /// The day that is open, or null.
    Q_PROPERTY(quillmere::SelectedLedgerDay* selectedDay READ selectedDay NOTIFY selectedDayChanged)

public:
    /// All references must outlive the object.
    ReportsViewModel(StoreSession& session, AppState& appState,
                     const platform::UserFolders& folders, QObject* parent = nullptr);
    ~ReportsViewModel() override;

    [[nodiscard]] int granularityIndex() const { return static_cast<int>(granularity_); }
    [[nodiscard]] QString periodTitle() const;
    [[nodiscard]] QString periodTitleInLowerCase() const { return periodTitle().toLower(); }
    [[nodiscard]] QString periodWord() const;
    [[nodiscard]] bool hasNextPeriod() const;
    [[nodiscard]] const LedgerFigures& figures() const { return figures_; }
    [[nodiscard]] QList<QString> weekdays() const;
    [[nodiscard]] ReportDaysModel* days() { return &days_; }
    [[nodiscard]] QAbstractItemModel* changedDays() { return &changedDays_; }
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] FileShare* csvShare() { return &csvShare_; }
    [[nodiscard]] SelectedLedgerDay* selectedDay() const { return selectedDay_.get(); }

    /// The period's changes as they are now.
    [[nodiscard]] ReportCSVExport csvExport() const;

    /// Shows the week or the month around the same date.
    Q_INVOKABLE void chooseGranularity(int index);
    Q_INVOKABLE void showPreviousPeriod();
    /// Does nothing while there is no next one.
    Q_INVOKABLE void showNextPeriod();
    /// Opens the changed day at a row of `days` and puts the cursor on it; other rows do nothing.
    Q_INVOKABLE void requestDay(int row);
    /// Called when the day is no longer shown.
    Q_INVOKABLE void closeDay();

signals:
    void changed();
    void selectedDayChanged();

private:
    void moveAnchor(int periods);
    void update();
    void onTimeChanged();
    [[nodiscard]] std::span<const LedgerRow> rows() const;

    StoreSession& session_;
    ReportGranularity granularity_ = ReportGranularity::month;
    platform::Instant anchor_; ///< a moment of the shown period, never in the future when set
    platform::Calendar calendar_;
    platform::DateText dates_;
    platform::DateInterval interval_;
    LedgerFigures figures_;
    ReportDaysModel days_;
    QSortFilterProxyModel changedDays_;
    FileShare csvShare_;
    std::unique_ptr<SelectedLedgerDay> selectedDay_;
};

} // namespace quillmere
