#include "QuillmereKit/widget/WidgetRefreshThrottle.h"

namespace quillmere {

bool WidgetRefreshThrottle::claim(platform::Instant at, double minimumInterval) {
    const double interval = minimumInterval >= 0 ? minimumInterval : 0;
    if (lastClaimedAt_) {
        const double elapsed = at - *lastClaimedAt_;
        if (!(elapsed < 0 || interval <= elapsed)) {
            return false;
        }
    }
    lastClaimedAt_ = at;
    return true;
}

} // namespace quillmere
