#pragma once

#include "QuillmereKit/widget/WidgetRecordRevisions.h"

namespace quillmere {

/// What the widget snapshot rests on, as a window sees it: another signature asks for another
/// snapshot. Work entries and schedules are no part of it, for nothing of them is published.
struct WidgetRefreshSignature {
    bool isActive = false; ///< the window has the keyboard
    WidgetRecordRevisions adjustments;
    WidgetRecordRevisions settings;

    friend bool operator==(const WidgetRefreshSignature&, const WidgetRefreshSignature&) = default;
};

} // namespace quillmere
