#include "Quillmere/composer/CategoryListModel.h"

#include <algorithm>

namespace quillmere {

void CategoryListModel::setOptions(std::vector<AdjustmentCategoryOption> options) {
    if (options_ != options) {
        beginResetModel();
        options_ = std::move(options);
        endResetModel();
    }
}

int CategoryListModel::rowOf(std::string_view rawValue) const {
    const auto found = std::ranges::find(options_, rawValue, &AdjustmentCategoryOption::rawValue);
    return found == options_.end() ? -1 : static_cast<int>(found - options_.begin());
}

int CategoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(options_.size());
}

QVariant CategoryListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const AdjustmentCategoryOption& option = options_[static_cast<std::size_t>(index.row())];
    switch (role) {
    case ValueRole:
        return QString::fromStdString(option.rawValue);
    case Qt::DisplayRole:
    case TitleRole:
        return QString::fromStdString(option.title);
    case SymbolRole:
        return QString::fromStdString(option.systemImage);
    default:
        return {};
    }
}

QHash<int, QByteArray> CategoryListModel::roleNames() const {
    return {{ValueRole, "value"}, {TitleRole, "title"}, {SymbolRole, "symbol"}};
}

} // namespace quillmere
