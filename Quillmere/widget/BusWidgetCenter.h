#pragma once

#include "QuillmereKit/widget/WidgetCenter.h"

#include <QtDBus/QDBusConnection>

namespace quillmere {

/// Widgets that listen on the session bus. Main thread.
class BusWidgetCenter final : public WidgetCenter {
public:
    explicit BusWidgetCenter(QDBusConnection bus);

    void reloadAllTimelines() override;

private:
    QDBusConnection bus_;
};

} // namespace quillmere
