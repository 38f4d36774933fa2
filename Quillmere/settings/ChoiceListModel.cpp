#include "Quillmere/settings/ChoiceListModel.h"

#include <utility>

namespace quillmere {

ChoiceListModel::ChoiceListModel(QList<Choice> choices, QObject* parent)
    : QAbstractListModel(parent), choices_(std::move(choices)) {
}

int ChoiceListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(choices_.size());
}

QVariant ChoiceListModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Choice& choice = choices_[index.row()];
    switch (role) {
    case ValueRole:
        return choice.value;
    case Qt::DisplayRole:
    case TitleRole:
        return choice.title;
    case SymbolRole:
        return QString();
    default:
        return {};
    }
}

QHash<int, QByteArray> ChoiceListModel::roleNames() const {
    return {{ValueRole, "value"}, {TitleRole, "title"}, {SymbolRole, "symbol"}};
}

} // namespace quillmere
