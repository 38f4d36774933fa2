#include "Quillmere/shell/PreferencesFollower.h"

namespace quillmere {

PreferencesFollower::PreferencesFollower(platform::Preferences& domain, QObject* parent)
    : QObject(parent), domain_(domain) {
    domain_.onChange([this] { emit changed(); });
}

PreferencesFollower::~PreferencesFollower() {
    domain_.onChange({});
}

} // namespace quillmere
