#pragma once

#include "QuillmereKit/widget/WidgetCenter.h"

namespace quillmere {

/// Counts how often the widgets were asked to read the snapshot again.
class CountingWidgetCenter final : public WidgetCenter {
public:
    void reloadAllTimelines() override { ++reloads; }

    int reloads = 0;
};

} // namespace quillmere
