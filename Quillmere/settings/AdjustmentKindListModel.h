#pragma once

#include "QuillmereKit/rules/BalanceAdjustmentKind.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <set>

namespace quillmere {

/// The built-in kinds that the user may hide, in their fixed order.
///
/// Roles: `rawValue`, `title`, `symbol` (symbol name), `shown`.
class AdjustmentKindListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { RawValueRole = Qt::UserRole, TitleRole, SymbolRole, ShownRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::set<BalanceAdjustmentKind>& shown() const { return shown_; }
    void setShown(std::set<BalanceAdjustmentKind> kinds);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::set<BalanceAdjustmentKind> shown_;
};

} // namespace quillmere
