#pragma once

#include "Platform/base/Clock.h"
#include "Platform/entitlements/Entitlements.h"
#include "Platform/files/UserFolders.h"
#include "Platform/preferences/FilePreferences.h"
#include "Quillmere/actions/SystemCalendarSource.h"
#include "QuillmereKit/actions/AdjustTimeBankIntent.h"
#include "QuillmereKit/widget/WidgetCenter.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillmere {

/// The scriptable action on the running system: its clock and zone, the user's folders, and what
/// the build is entitled to. Every call opens the store anew.
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

    /// Closes the store of the last call, for when its caller has been answered.
    void letGo() { store_.reset(); }

private:
    [[nodiscard]] AdjustTimeBankIntent::Services services();

    platform::UserFolders folders_;
    platform::SystemClock clock_;
    SystemCalendarSource calendars_;
    platform::FileEntitlements entitlements_;
    platform::FilePreferences preferences_;
    platform::FilePreferences suite_;
    WidgetCenter& widgets_;
    std::shared_ptr<platform::store::Store> store_;
};

} // namespace quillmere
