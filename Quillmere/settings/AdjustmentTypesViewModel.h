#pragma once

#include "Quillmere/settings/AdjustmentKindListModel.h"
#include "Quillmere/settings/CustomCategoryListModel.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

namespace quillmere {

class AppState;
class StoreSession;
class TimeBankSettings;

/// Which categories the forms offer. Everything follows from the settings record; each change is
/// saved when it is made, and a failed save changes nothing and is reported. Without a settings
/// record all kinds are off and no change is possible. Main thread.
class AdjustmentTypesViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the settings' view model")
    Q_PROPERTY(quillmere::AdjustmentKindListModel* kinds READ kinds CONSTANT)
    Q_PROPERTY(quillmere::CustomCategoryListModel* customCategories READ customCategories CONSTANT)
    /// What the user typed as the title of a category to add.
    Q_PROPERTY(QString newAdjustmentCategoryName READ newAdjustmentCategoryName WRITE
                   setNewAdjustmentCategoryName NOTIFY newAdjustmentCategoryNameChanged)
    /// Whether what was typed can be added: it is a title, there is room, and no category has it.
    Q_PROPERTY(bool canAdd READ canAdd NOTIFY canAddChanged)

public:
    /// Both must outlive the object.
    AdjustmentTypesViewModel(StoreSession& session, AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] AdjustmentKindListModel* kinds() { return &kinds_; }
    [[nodiscard]] CustomCategoryListModel* customCategories() { return &customCategories_; }
    [[nodiscard]] const QString& newAdjustmentCategoryName() const { return newName_; }
    void setNewAdjustmentCategoryName(const QString& name);
    [[nodiscard]] bool canAdd() const { return candidate_.has_value(); }

    /// Shows or hides the kind in this row of `kinds`.
    Q_INVOKABLE void toggleKind(int row);
    /// Adds what was typed, if it can be added, and empties the field.
    Q_INVOKABLE void add();
    /// Removes the category in this row of `customCategories`. Changes of that category keep it.
    Q_INVOKABLE void remove(int row);

signals:
    void newAdjustmentCategoryNameChanged();
    void canAddChanged();

private:
    using Edit = std::function<void(TimeBankSettings&)>;

    void follow();
    void updateCandidate();
    [[nodiscard]] std::optional<CustomAdjustmentCategory> makeCandidate() const;
    void save(const Edit& edit);
    void saveCategories(const std::vector<CustomAdjustmentCategory>& categories);

    StoreSession& session_;
    AppState& appState_;
    AdjustmentKindListModel kinds_;
    CustomCategoryListModel customCategories_;
    QString newName_;
    std::optional<CustomAdjustmentCategory> candidate_;
};

} // namespace quillmere
