#include "Quillmere/dashboard/RecentActivityModel.h"

#include <algorithm>

namespace quillmere {

namespace {

bool holds(const std::vector<RecentActivityModel::Item>& items, const BalanceAdjustment* record) {
    return std::any_of(items.begin(), items.end(),
                       [&](const auto& item) { return item.record == record; });
}

} // namespace

void RecentActivityModel::setItems(std::vector<Item> items) {
    removeMissing(items);
    for (std::size_t row = 0; row < items.size(); ++row) {
        placeItem(row, std::move(items[row]));
    }
}

void RecentActivityModel::removeMissing(const std::vector<Item>& items) {
    for (std::size_t row = items_.size(); row-- > 0;) {
        if (!holds(items, items_[row].record)) {
            const int index = static_cast<int>(row);
            beginRemoveRows({}, index, index);
            items_.erase(items_.begin() + index);
            endRemoveRows();
        }
    }
}

// The rows before `row` are in place already, so the row is here, further down, or new.
void RecentActivityModel::placeItem(std::size_t row, Item item) {
    const int target = static_cast<int>(row);
    const auto found = std::find_if(items_.begin() + target, items_.end(),
                                    [&](const Item& held) { return held.record == item.record; });
    if (found == items_.end()) {
        beginInsertRows({}, target, target);
        items_.insert(items_.begin() + target, std::move(item));
        endInsertRows();
        return;
    }
    const int source = static_cast<int>(found - items_.begin());
    if (source != target) {
        beginMoveRows({}, source, source, {}, target);
        std::rotate(items_.begin() + target, found, found + 1);
        endMoveRows();
    }
    if (items_[row].transaction != item.transaction) {
        items_[row] = std::move(item);
        emit dataChanged(index(target), index(target));
    }
}

int RecentActivityModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items_.size());
}

QVariant RecentActivityModel::data(const QModelIndex& index, int role) const {
    if (role != TransactionRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    return QVariant::fromValue(items_[static_cast<std::size_t>(index.row())].transaction);
}

QHash<int, QByteArray> RecentActivityModel::roleNames() const {
    return {{TransactionRole, "transaction"}};
}

} // namespace quillmere
