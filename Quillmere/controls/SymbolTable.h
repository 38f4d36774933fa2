#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

namespace quillmere {

/// The resource path of the drawing for a symbol name such as "calendar.badge.clock". Unknown names
/// give the drawing of "questionmark", so that a missing one is seen.
[[nodiscard]] QString symbolResource(QStringView name);

} // namespace quillmere
