#pragma once

#include "QuillmereKit/records/AppConstants.h"

/// The program on the session bus. Scripts and desktops call by these names: frozen.
namespace quillmere::BusNames {

inline constexpr const char* service = "dev.vantor.quillmere.Actions";
inline constexpr const char* actionsPath = "/dev/vantor/quillmere/Actions";
inline constexpr const char* actionsInterface = "dev.vantor.quillmere.Actions";
inline constexpr const char* searchProviderPath = "/dev/vantor/quillmere/Actions/SearchProvider";
inline constexpr const char* runnerPath = "/dev/vantor/quillmere/Actions/Runner";

/// The application itself: its bus name, its desktop file and its icon.
inline constexpr const char* application = AppConstants::applicationIdentifier.data();
inline constexpr const char* applicationPath = "/dev/vantor/quillmere";
inline constexpr const char* applicationName = "Quillmere";

} // namespace quillmere::BusNames
