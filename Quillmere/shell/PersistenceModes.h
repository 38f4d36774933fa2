#pragma once

#include "QuillmereKit/persistence/PersistenceMode.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

/// `PersistenceMode` as QML sees it (`PersistenceMode.LocalOnly`): names of enumerators that QML
/// can reach begin with a capital. The numbers are the same.
namespace quillmere::PersistenceModes {

Q_NAMESPACE
QML_NAMED_ELEMENT(PersistenceMode)

enum class Mode {
    ICloud = static_cast<int>(PersistenceMode::iCloud),
    LocalOnly = static_cast<int>(PersistenceMode::localOnly),
    Temporary = static_cast<int>(PersistenceMode::temporary),
    Unavailable = static_cast<int>(PersistenceMode::unavailable),
};
Q_ENUM_NS(Mode)

[[nodiscard]] inline Mode of(PersistenceMode mode) {
    return static_cast<Mode>(mode);
}

} // namespace quillmere::PersistenceModes
