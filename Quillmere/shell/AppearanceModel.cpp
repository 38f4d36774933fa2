#include "Quillmere/shell/AppearanceModel.h"

#include "Quillmere/shell/QuillmereAppearance.h"
#include "QuillmereKit/records/AppConstants.h"

namespace quillmere {

AppearanceModel::AppearanceModel(const platform::Preferences& preferences,
                                 const DesktopSettings& desktop, QObject* parent)
    : QObject(parent), preferences_(preferences), desktop_(desktop) {
    connect(&desktop, &DesktopSettings::lookChanged, this, &AppearanceModel::changed);
}

bool AppearanceModel::dark() const {
    const auto stored = preferences_.string(AppConstants::appearanceKey);
    return QuillmereAppearances::darkOverride(stored.value_or(""))
        .value_or(desktop_.look().prefersDark.value_or(false));
}

} // namespace quillmere
