#include "Quillmere/settings/PreferenceSwitch.h"

#include "Quillmere/shell/PreferencesFollower.h"

namespace quillmere {

PreferenceSwitch::PreferenceSwitch(PreferencesFollower& preferences, std::string_view key,
                                   bool whenAbsent, QObject* parent)
    : QObject(parent), preferences_(preferences), key_(key), whenAbsent_(whenAbsent) {
    connect(&preferences_, &PreferencesFollower::changed, this, &PreferenceSwitch::changed);
}

bool PreferenceSwitch::isOn() const {
    return preferences_.domain().boolean(key_).value_or(whenAbsent_);
}

void PreferenceSwitch::toggle() {
    preferences_.domain().setBoolean(key_, !isOn());
}

} // namespace quillmere
