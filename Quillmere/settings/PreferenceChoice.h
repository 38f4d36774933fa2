#pragma once

#include "Quillmere/settings/ChoiceListModel.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <string_view>

namespace quillmere {

class PreferencesFollower;

/// A preference that holds one of a few texts. It shows what is stored, also after others changed
/// it; the first choice stands for anything unknown. Main thread.
class PreferenceChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(quillmere::ChoiceListModel* choices READ choices CONSTANT)
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY currentIndexChanged)

public:
    /// `choices` are in the picker's order, the default first. `key` must be a constant;
    /// `preferences` must outlive the object.
    PreferenceChoice(PreferencesFollower& preferences, std::string_view key,
                     QList<ChoiceListModel::Choice> choices, QObject* parent = nullptr);

    [[nodiscard]] ChoiceListModel* choices() { return &choices_; }
    [[nodiscard]] int currentIndex() const;

    /// Stores the choice. One that cannot be stored is not made.
    Q_INVOKABLE void choose(int index);

signals:
    void currentIndexChanged();

private:
    PreferencesFollower& preferences_;
    std::string_view key_;
    ChoiceListModel choices_;
};

} // namespace quillmere
