#pragma once

#include <QtCore/QAbstractListModel>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Fixed choices for a `MenuPicker`.
///
/// Roles: `value` (the stored text), `title`, `symbol` (always empty).
class ChoiceListModel : public QAbstractListModel {
    Q_OBJECT
    QML_ANONYMOUS

public:
    enum Role { ValueRole = Qt::UserRole, TitleRole, SymbolRole };

    struct Choice {
        QString value;
        QString title;
    };

    explicit ChoiceListModel(QList<Choice> choices, QObject* parent = nullptr);

    [[nodiscard]] const QList<Choice>& choices() const { return choices_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Choice> choices_;
};

} // namespace quillmere
