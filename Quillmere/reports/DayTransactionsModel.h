#pragma once

#include "Platform/calendar/DateText.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace quillmere {

class StoreSession;

/// The changes of one day, oldest first. One role, `transaction` (`LedgerTransaction`), made when a
/// view asks for it, so that a day may hold any number of changes.
class DayTransactionsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of a selected day")

public:
    enum Role { TransactionRole = Qt::UserRole };

    /// `session` must outlive the object.
    explicit DayTransactionsModel(StoreSession& session, QObject* parent = nullptr);

    /// Shows these rows, with their dates in this calendar.
    void setRows(std::vector<LedgerRow> rows, const platform::Calendar& calendar);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    StoreSession& session_;
    platform::Calendar calendar_;
    platform::DateText dates_;
    std::vector<LedgerRow> rows_;
};

} // namespace quillmere
