#include "Quillmere/settings/CustomCategoryListModel.h"

#include <algorithm>
#include <iterator>

namespace quillmere {

void CustomCategoryListModel::setCategories(std::vector<CustomAdjustmentCategory> categories) {
    const auto [oldMiddle, newMiddle] =
        std::mismatch(categories_.begin(), categories_.end(), categories.begin(), categories.end());
    const auto [oldTail, newTail] =
        std::mismatch(categories_.rbegin(), std::make_reverse_iterator(oldMiddle),
                      categories.rbegin(), std::make_reverse_iterator(newMiddle));
    const int first = static_cast<int>(oldMiddle - categories_.begin());
    if (oldMiddle != oldTail.base()) {
        beginRemoveRows({}, first, static_cast<int>(oldTail.base() - categories_.begin()) - 1);
        categories_.erase(oldMiddle, oldTail.base());
        endRemoveRows();
    }
    if (newMiddle != newTail.base()) {
        beginInsertRows({}, first, static_cast<int>(newTail.base() - categories.begin()) - 1);
        categories_.insert(categories_.begin() + first, newMiddle, newTail.base());
        endInsertRows();
    }
}

int CustomCategoryListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(categories_.size());
}

QVariant CustomCategoryListModel::data(const QModelIndex& index, int role) const {
    const bool known = checkIndex(index, CheckIndexOption::IndexIsValid) &&
                       (role == TitleRole || role == Qt::DisplayRole);
    return known
               ? QString::fromStdString(categories_[static_cast<std::size_t>(index.row())].title())
               : QVariant();
}

QHash<int, QByteArray> CustomCategoryListModel::roleNames() const {
    return {{TitleRole, "title"}};
}

} // namespace quillmere
