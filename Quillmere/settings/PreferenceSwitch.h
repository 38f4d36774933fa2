#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <string_view>

namespace quillmere {

class PreferencesFollower;

/// A preference that is on or off. It shows what is stored, also after others changed it. Main
/// thread.
class PreferenceSwitch : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(bool on READ isOn NOTIFY changed)

public:
    /// `whenAbsent` is what holds while nothing is stored. `key` must be a constant; `preferences`
    /// must outlive the object.
    PreferenceSwitch(PreferencesFollower& preferences, std::string_view key, bool whenAbsent,
                     QObject* parent = nullptr);

    [[nodiscard]] bool isOn() const;

    /// Stores the opposite, if that can be stored.
    Q_INVOKABLE void toggle();

signals:
    void changed();

private:
    PreferencesFollower& preferences_;
    std::string_view key_;
    bool whenAbsent_;
};

} // namespace quillmere
