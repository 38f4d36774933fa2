#pragma once

#include "Quillmere/reports/DayTransactionsModel.h"
#include "Quillmere/reports/LedgerFigures.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A day that was opened: its sums and its changes. They follow the records and the calendar as
/// long as the object lives. Main thread.
class SelectedLedgerDay : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the report's view model")
    /// The day as weekday, month and day.
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(quillmere::LedgerFigures figures READ figures NOTIFY changed)
    Q_PROPERTY(quillmere::DayTransactionsModel* changes READ changes CONSTANT)

public:
    /// The day that contains `date`. `session` must outlive the object.
    SelectedLedgerDay(StoreSession& session, platform::Instant date, QObject* parent = nullptr);

    [[nodiscard]] platform::Instant date() const { return date_; }
    [[nodiscard]] const QString& title() const { return title_; }
    [[nodiscard]] const LedgerFigures& figures() const { return figures_; }
    [[nodiscard]] DayTransactionsModel* changes() { return &changes_; }

signals:
    void changed();

private:
    void update();

    StoreSession& session_;
    platform::Instant date_;
    QString title_;
    LedgerFigures figures_;
    DayTransactionsModel changes_;
};

} // namespace quillmere
