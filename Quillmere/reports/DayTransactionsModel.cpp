#include "Quillmere/reports/DayTransactionsModel.h"

#include "Quillmere/dashboard/LedgerTransaction.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"

#include <utility>

namespace quillmere {

DayTransactionsModel::DayTransactionsModel(StoreSession& session, QObject* parent)
    : QAbstractListModel(parent),
      session_(session),
      calendar_(session.time().current()),
      dates_(calendar_) {
}

void DayTransactionsModel::setRows(std::vector<LedgerRow> rows,
                                   const platform::Calendar& calendar) {
    if (rows == rows_ && calendar == calendar_) {
        return;
    }
    beginResetModel();
    rows_ = std::move(rows);
    calendar_ = calendar;
    dates_ = platform::DateText(calendar);
    endResetModel();
}

int DayTransactionsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

// A record that cannot be read, or was deleted a moment ago, has an empty row until the next
// publication.
QVariant DayTransactionsModel::data(const QModelIndex& index, int role) const {
    if (role != TransactionRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const LedgerRow& row = rows_[static_cast<std::size_t>(index.row())];
    LedgerTransaction transaction;
    try {
        if (const auto* record = session_.context().find<BalanceAdjustment>(row.ref)) {
            transaction = LedgerTransaction::of(*record, dates_);
        }
    } catch (const platform::store::StoreError&) {
    }
    return QVariant::fromValue(transaction);
}

QHash<int, QByteArray> DayTransactionsModel::roleNames() const {
    return {{TransactionRole, "transaction"}};
}

} // namespace quillmere
