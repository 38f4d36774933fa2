#pragma once

#include <QtCore/QString>
#include <QtCore/QUuid>

namespace quillmere {

/// What an import did, for the user. Every import makes a new one, so two with the same message are
/// still two notices.
struct ArchiveImportNotice {
    QUuid id = QUuid::createUuid();
    QString message;
};

} // namespace quillmere
