#pragma once

#include "QuillmereKit/rules/AdjustmentCategoryOption.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace quillmere {

/// Categories for a `MenuPicker`.
///
/// Roles: `value` (raw value), `title`, `symbol` (symbol name).
class CategoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { ValueRole = Qt::UserRole, TitleRole, SymbolRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<AdjustmentCategoryOption>& options() const { return options_; }
    /// Resets the model when the options differ from those it has.
    void setOptions(std::vector<AdjustmentCategoryOption> options);
    /// Row of the option with this raw value, −1 when there is none.
    [[nodiscard]] int rowOf(std::string_view rawValue) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<AdjustmentCategoryOption> options_;
};

} // namespace quillmere
