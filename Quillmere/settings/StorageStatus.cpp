#include "Quillmere/settings/StorageStatus.h"

#include <QtCore/QCoreApplication>

namespace quillmere {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("StorageStatus", text);
}

} // namespace

StorageStatus StorageStatus::of(PersistenceMode mode) {
    switch (mode) {
    case PersistenceMode::iCloud:
        return {tr("Private iCloud sync is on"), QStringLiteral("icloud"),
                tr("Your time-bank changes sync automatically through your private iCloud "
                   "database. Quillmere has no account system and no analytics SDK.")};
    case PersistenceMode::localOnly:
        return {tr("Saved on this device"), QStringLiteral("icloud.slash"),
                tr("iCloud was unavailable when Quillmere opened. Changes remain on this device "
                   "until you retry.")};
    case PersistenceMode::temporary:
        return {tr("Temporary storage"), QStringLiteral("externaldrive.badge.xmark"),
                tr("Persistent storage was unavailable when Quillmere opened. Changes will be lost "
                   "when the app closes.")};
    case PersistenceMode::unavailable:
        break;
    }
    return {tr("Storage unavailable"), QStringLiteral("exclamationmark.triangle"),
            tr("Quillmere couldn't open a data store. Your existing time bank hasn't been "
               "erased.")};
}

} // namespace quillmere
