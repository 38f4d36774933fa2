#pragma once

#include "Platform/base/Uuid.h"

#include <string_view>

/// Fixed identifiers and preference keys, all of them stored or published somewhere: frozen.
namespace quillmere::AppConstants {

/// The application's bus name, desktop file, icon and folders.
inline constexpr std::string_view applicationIdentifier = "dev.vantor.quillmere";
inline constexpr std::string_view appGroupIdentifier = "group.dev.vantor.quillmere";
inline constexpr std::string_view cloudKitContainerIdentifier = "iCloud.dev.vantor.quillmere";

inline constexpr std::string_view widgetSnapshotKey = "widgetSnapshot";
inline constexpr std::string_view localWidgetSnapshotDirectoryName = "Quillmere";
inline constexpr std::string_view localWidgetSnapshotFileName = "widget-snapshot.json";

inline constexpr std::string_view showMenuBarExtraKey = "showMenuBarExtra";
inline constexpr std::string_view menuBarDisplayModeKey = "menuBarDisplayMode";
inline constexpr std::string_view closeWindowToMenuBarKey = "closeWindowToMenuBar";
inline constexpr std::string_view appearanceKey = "appearance";

inline constexpr std::string_view deepLinkScheme = "quillmere";
inline constexpr std::string_view supportURLString =
    "https://quillmere.vantor.dev/apps/quillmere/support";
inline constexpr std::string_view privacyURLString =
    "https://quillmere.vantor.dev/apps/quillmere/privacy";

/// Identifier of the marker that the one-time ledger migration leaves behind.
[[nodiscard]] const platform::Uuid& manualLedgerMigrationAdjustmentID();

} // namespace quillmere::AppConstants
