#include "Quillmere/settings/DataManagementTexts.h"

#include <QtCore/QCoreApplication>

namespace quillmere::DataManagementTexts {

namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("DataManagementTexts", text);
}

QString erasedThings(PersistenceMode mode) {
    switch (mode) {
    case PersistenceMode::iCloud:
        return tr("Deletes time-bank changes, settings, and retained legacy data from this device "
                  "and your private iCloud time bank.");
    case PersistenceMode::localOnly:
        return tr("Deletes time-bank changes, settings, and retained legacy data stored on this "
                  "device.");
    case PersistenceMode::temporary:
        return tr("Deletes all time-bank changes, settings, and retained legacy data from this "
                  "temporary session.");
    case PersistenceMode::unavailable:
        break;
    }
    return tr("No data store is open, so there is nothing available to erase.");
}

} // namespace

QString footer(PersistenceMode mode) {
    return tr("Export or merge a complete copy of time-bank notes, settings, and retained legacy "
              "data.") +
           ' ' + erasedThings(mode);
}

// Plural or not: "1 records" is meant.
QString importTitle(std::optional<std::size_t> records) {
    return records ? tr("Import %1 records?").arg(*records) : tr("Import data archive?");
}

QString importMessage(PersistenceMode mode) {
    return mode == PersistenceMode::iCloud
               ? tr("New records are added, and matching records change only when the archive is "
                    "newer. Current records aren't deleted. Imported changes sync to your other "
                    "devices.")
               : tr("New records are added, and matching records change only when the archive is "
                    "newer. Current records aren't deleted.");
}

QString importedMessage(const TimeBankArchiveMergeResult& result) {
    return tr("%1 added, %2 updated, and %3 already current.")
        .arg(result.inserted)
        .arg(result.updated)
        .arg(result.unchanged);
}

QString eraseMessage(PersistenceMode mode) {
    switch (mode) {
    case PersistenceMode::iCloud:
        return tr("This cannot be undone. Quillmere will return to setup after deleting the synced "
                  "time bank.");
    case PersistenceMode::localOnly:
        return tr("This cannot be undone. Quillmere will return to setup after deleting this "
                  "device's time bank.");
    case PersistenceMode::temporary:
        return tr("This cannot be undone. Quillmere will return to setup after deleting the "
                  "temporary time bank.");
    case PersistenceMode::unavailable:
        break;
    }
    return tr("No data store is open, so there is nothing available to erase.");
}

} // namespace quillmere::DataManagementTexts
