#include "Quillmere/shell/QuillmereMacAppDelegate.h"

#include "QuillmereKit/records/AppConstants.h"

namespace quillmere {

QuillmereMacAppDelegate::QuillmereMacAppDelegate(const platform::Preferences& preferences)
    : preferences_(preferences) {
}

bool QuillmereMacAppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
    return !preferences_.boolean(AppConstants::closeWindowToMenuBarKey).value_or(false);
}

} // namespace quillmere
