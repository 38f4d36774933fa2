#include "Quillmere/settings/PreferenceChoice.h"

#include "Quillmere/shell/PreferencesFollower.h"

#include <algorithm>
#include <utility>

namespace quillmere {

PreferenceChoice::PreferenceChoice(PreferencesFollower& preferences, std::string_view key,
                                   QList<ChoiceListModel::Choice> choices, QObject* parent)
    : QObject(parent), preferences_(preferences), key_(key), choices_(std::move(choices)) {
    connect(&preferences_, &PreferencesFollower::changed, this,
            &PreferenceChoice::currentIndexChanged);
}

int PreferenceChoice::currentIndex() const {
    const QString stored =
        QString::fromStdString(preferences_.domain().string(key_).value_or(std::string()));
    const auto& all = choices_.choices();
    const auto found = std::ranges::find(all, stored, &ChoiceListModel::Choice::value);
    return found == all.end() ? 0 : static_cast<int>(found - all.begin());
}

// The picker has moved already; when nothing was stored it has to move back.
void PreferenceChoice::choose(int index) {
    const std::string value = choices_.choices().at(index).value.toStdString();
    if (!preferences_.domain().setString(key_, value)) {
        emit currentIndexChanged();
    }
}

} // namespace quillmere
