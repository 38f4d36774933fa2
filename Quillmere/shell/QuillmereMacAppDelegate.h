#pragma once

#include "Platform/preferences/Preferences.h"

namespace quillmere {

/// Decides whether the program ends when its last window was closed.
class QuillmereMacAppDelegate {
public:
    /// `preferences` is the standard domain and must outlive the object.
    explicit QuillmereMacAppDelegate(const platform::Preferences& preferences);

    /// False when the user wants the window to close to the tray ("closeWindowToMenuBar"): then the
    /// program runs on without a window.
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const;

private:
    const platform::Preferences& preferences_;
};

} // namespace quillmere
