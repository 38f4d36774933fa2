#include "Quillmere/settings/AppVersion.h"

#include <QtCore/QCoreApplication>

namespace quillmere {

QString AppVersion::text(const QString& shortVersion, const QString& buildNumber) {
    if (shortVersion.isEmpty()) {
        return QCoreApplication::translate("AppVersion", "Unavailable");
    }
    return buildNumber.isEmpty() ? shortVersion
                                 : QStringLiteral("%1 (%2)").arg(shortVersion, buildNumber);
}

} // namespace quillmere
