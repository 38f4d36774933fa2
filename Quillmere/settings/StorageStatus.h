#pragma once

#include "QuillmereKit/persistence/PersistenceMode.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// How the time bank is kept, in words.
struct StorageStatus {
    Q_GADGET
    QML_VALUE_TYPE(storageStatus)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)

public:
    [[nodiscard]] static StorageStatus of(PersistenceMode mode);

    QString title;
    QString symbol; ///< symbol name
    QString text;
};

} // namespace quillmere
