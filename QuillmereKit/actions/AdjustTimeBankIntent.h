#pragma once

#include "Platform/base/Clock.h"
#include "Platform/base/Uuid.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/entitlements/Entitlements.h"
#include "Platform/preferences/Preferences.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/persistence/StoreLocations.h"
#include "QuillmereKit/widget/WidgetCenter.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// The scriptable action: adds minutes to the time bank, or takes them, without the application.
///
/// Every run opens the record store by itself, repairs it, records the change when setup is
/// complete, publishes the widget snapshot and lets go of the store. Any number of runs, in any
/// number of processes and beside the open application, may be under way at once.
class AdjustTimeBankIntent {
public:
    static constexpr std::string_view title = "Adjust time bank";
    static constexpr std::string_view minutesTitle = "Minutes";
    static constexpr std::int64_t defaultMinutes = 30;
    /// Most bytes of a key, in UTF-8.
    static constexpr std::size_t maximumKeyLength = 200;

    /// How a run ended. Missing setup and impossible amounts are outcomes, not failures, so that
    /// whoever automates shows the sentence that goes with them.
    enum class Outcome {
        recorded,
        invalidAmount, ///< zero, or more than 24 hours either way; no store was touched
        needsSetup,    ///< setup is not complete; nothing was recorded
    };

    struct Result {
        Outcome outcome;
        std::string_view dialog; ///< the sentence to show or speak; static
    };

    /// The change that a key stands for.
    struct Booking {
        platform::Uuid recordId;
        std::int64_t balanceMinutes; ///< the balance right after the change was recorded
    };

    struct KeyedResult {
        Result result;
        std::optional<Booking> booking; ///< present exactly when the outcome is `recorded`
    };

    /// What a run uses of its surroundings.
    struct Services {
        const platform::Entitlements& entitlements;
        StoreLocations locations;
        const platform::Clock& clock;
        const platform::CalendarSource& calendars;
        platform::Preferences* suite; ///< of the application group; null where it cannot be opened
        platform::Preferences& standard;
        WidgetCenter& widgets;
        /// If given, keeps the store that a run opened. Closing it takes several syncs of the disk:
        /// this way the caller can answer first.
        std::shared_ptr<platform::store::Store>* keeper = nullptr;
    };

    explicit AdjustTimeBankIntent(std::int64_t minutes = defaultMinutes) : minutes_(minutes) {}

    /// Positive adds time, negative takes it.
    [[nodiscard]] std::int64_t minutes() const { return minutes_; }
    /// "Adjust time bank by 30 minutes".
    [[nodiscard]] std::string parameterSummary() const;

    /// Runs the action. Each run records a change. Throws `StoreError`; when only publishing the
    /// snapshot failed, the change is recorded all the same.
    [[nodiscard]] Result perform(const Services& services) const;

    /// Runs the action for a caller that may have to try again without knowing how far it came:
    /// whatever number of runs is made with a key, at the same moment or years apart, one of them
    /// records the change, and all others answer what that one did. A run that ends in another
    /// outcome than `recorded`, or in a failure before the change was saved, does not use the key
    /// up. A key lasts on this device until all data is erased, also when its change is edited or
    /// deleted. Keys are compared byte by byte.
    ///
    /// Throws `AdjustmentKeyError` when the key is empty, too long, or stands for another amount;
    /// else as `perform` does.
    [[nodiscard]] KeyedResult performOnce(std::string_view key, const Services& services) const;

private:
    [[nodiscard]] Result result(Outcome outcome) const;

    std::int64_t minutes_;
};

} // namespace quillmere
