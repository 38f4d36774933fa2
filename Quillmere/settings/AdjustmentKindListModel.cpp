#include "Quillmere/settings/AdjustmentKindListModel.h"

#include "QuillmereKit/rules/AdjustmentCategoryOption.h"
#include "QuillmereKit/rules/AdjustmentKindConfiguration.h"

#include <utility>

namespace quillmere {

namespace {

constexpr const auto& kinds = AdjustmentKindConfiguration::configurableKinds;

} // namespace

void AdjustmentKindListModel::setShown(std::set<BalanceAdjustmentKind> shown) {
    const auto before = std::exchange(shown_, std::move(shown));
    for (std::size_t row = 0; row < kinds.size(); ++row) {
        if (before.contains(kinds[row]) != shown_.contains(kinds[row])) {
            const QModelIndex changed = index(static_cast<int>(row));
            emit dataChanged(changed, changed, {ShownRole});
        }
    }
}

int AdjustmentKindListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kinds.size());
}

QVariant AdjustmentKindListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const BalanceAdjustmentKind kind = kinds.at(static_cast<std::size_t>(index.row()));
    const auto option = AdjustmentCategoryOption::builtIn(kind);
    switch (role) {
    case RawValueRole:
        return QString::fromStdString(option.rawValue);
    case Qt::DisplayRole:
    case TitleRole:
        return QString::fromStdString(option.title);
    case SymbolRole:
        return QString::fromStdString(option.systemImage);
    case ShownRole:
        return shown_.contains(kind);
    default:
        return {};
    }
}

QHash<int, QByteArray> AdjustmentKindListModel::roleNames() const {
    return {{RawValueRole, "rawValue"},
            {TitleRole, "title"},
            {SymbolRole, "symbol"},
            {ShownRole, "shown"}};
}

} // namespace quillmere
