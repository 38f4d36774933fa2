#pragma once

#include "Platform/base/Clock.h"
#include "Platform/entitlements/Entitlements.h"
#include "Platform/files/UserFolders.h"
#include "Platform/preferences/FilePreferences.h"
#include "Quillmere/actions/SystemCalendarSource.h"
#include "QuillmereKit/actions/AdjustTimeBankIntent.h"
#include "QuillmereKit/widget/WidgetCenter.h"

#include <cstdint>
#include <string>

namespace quillmere {

/// The scriptable action on the running system: its clock and zone, the user's folders, and what
/// the build is entitled to. Every call opens the store anew and lets go of it.
class TimeBankActions {
public:
    /// `widgets` must outlive the object.
    explicit TimeBankActions(WidgetCenter& widgets);

    /// Throw as the functions of `AdjustTimeBankIntent` do.
    [[nodiscard]] AdjustTimeBankIntent::Result adjust(std::int64_t minutes);
    [[nodiscard]] AdjustTimeBankIntent::KeyedResult adjustOnce(const std::string& key,
                                                               std::int64_t minutes);

    /// The balance as it was last published, for runs that recorded nothing.
    [[nodiscard]] std::int64_t publishedBalanceMinutes();

private:
    [[nodiscard]] AdjustTimeBankIntent::Services services();

    platform::UserFolders folders_;
    platform::SystemClock clock_;
    SystemCalendarSource calendars_;
    platform::FileEntitlements entitlements_;
    platform::FilePreferences preferences_;
    platform::FilePreferences suite_;
    WidgetCenter& widgets_;
};

} // namespace quillmere
