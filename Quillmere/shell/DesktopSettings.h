#pragma once

#include "Quillmere/shell/DesktopLook.h"

#include <QtCore/QObject>

namespace quillmere {

/// Where the desktop's wishes come from, and news of their changing. Main thread.
class DesktopSettings : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    [[nodiscard]] virtual DesktopLook look() const = 0;

signals:
    void lookChanged();
};

} // namespace quillmere
