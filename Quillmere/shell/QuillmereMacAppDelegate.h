#pragma once

#include "Platform/preferences/Preferences.h"

#include <functional>

namespace quillmere {

/// Decides whether the program ends when its last window was closed.
class QuillmereMacAppDelegate {
public:
    /// `preferences` is the standard domain and must outlive the object. `hasTrayHost` answers
    /// whether the desktop shows a tray item now.
    QuillmereMacAppDelegate(const platform::Preferences& preferences,
                            std::function<bool()> hasTrayHost);

    /// False when the user wants the window to close to the tray ("closeWindowToMenuBar") and there
    /// is a tray to come back from: then the program runs on without a window. Otherwise nothing
    /// could bring the window back, and the program ends.
    [[nodiscard]] bool applicationShouldTerminateAfterLastWindowClosed() const;

private:
    const platform::Preferences& preferences_;
    std::function<bool()> hasTrayHost_;
};

} // namespace quillmere
