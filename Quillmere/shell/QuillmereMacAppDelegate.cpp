#include "Quillmere/shell/QuillmereMacAppDelegate.h"

#include "QuillmereKit/records/AppConstants.h"

#include <utility>

namespace quillmere {

QuillmereMacAppDelegate::QuillmereMacAppDelegate(const platform::Preferences& preferences,
                                                 std::function<bool()> hasTrayHost)
    : preferences_(preferences), hasTrayHost_(std::move(hasTrayHost)) {
}

bool QuillmereMacAppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
    const bool closesToTray =
        preferences_.boolean(AppConstants::closeWindowToMenuBarKey).value_or(false);
    return !closesToTray || !hasTrayHost_();
}

} // namespace quillmere
