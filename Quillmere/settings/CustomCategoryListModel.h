#pragma once

#include "QuillmereKit/rules/CustomAdjustmentCategory.h"

#include <QtCore/QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace quillmere {

/// The user's own categories in their order. One role, `title`.
class CustomCategoryListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { TitleRole = Qt::UserRole };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] const std::vector<CustomAdjustmentCategory>& categories() const {
        return categories_;
    }
    /// Moves to the new list; rows that it has at its beginning and end in common with the old one
    /// stay.
    void setCategories(std::vector<CustomAdjustmentCategory> categories);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    std::vector<CustomAdjustmentCategory> categories_;
};

} // namespace quillmere
