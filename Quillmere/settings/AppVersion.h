#pragma once

#include <QtCore/QString>

namespace quillmere::AppVersion {

/// The version as the user reads it: "1.2 (45)", or "1.2" when there is no build number, or
/// "Unavailable" when there is no short version.
[[nodiscard]] QString text(const QString& shortVersion, const QString& buildNumber);

} // namespace quillmere::AppVersion
