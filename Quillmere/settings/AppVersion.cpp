#include "Quillmere/settings/AppVersion.h"

#include <QtCore/QCoreApplication>

namespace quillmere {

QString AppVersion::text(const QString& shortVersion, const QString& buildNumber) {
    const QString version = shortVersion.isEmpty()
                                ? QCoreApplication::translate("AppVersion", "Unavailable")
                                : shortVersion;
    return buildNumber.isEmpty() ? version : QStringLiteral("%1 (%2)").arg(version, buildNumber);
}

} // namespace quillmere
