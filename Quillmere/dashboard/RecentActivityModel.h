#pragma once

#include "Quillmere/dashboard/LedgerTransaction.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace quillmere {

class BalanceAdjustment;

/// The few newest changes, newest first. One role, `transaction` (`LedgerTransaction`).
class RecentActivityModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the dashboard's view model")

public:
    enum Role { TransactionRole = Qt::UserRole };

    struct Item {
        const BalanceAdjustment* record; ///< only compared: tells a changed row from another one
        LedgerTransaction transaction;
    };

    using QAbstractListModel::QAbstractListModel;

    /// Moves to the new list by removing, inserting and updating only the rows that differ.
    void setItems(std::vector<Item> items);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    void removeMissing(const std::vector<Item>& items);
    void placeItem(std::size_t row, Item item);

    std::vector<Item> items_;
};

} // namespace quillmere
