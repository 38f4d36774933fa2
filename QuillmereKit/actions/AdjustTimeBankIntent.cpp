#include "QuillmereKit/actions/AdjustTimeBankIntent.h"

#include "QuillmereKit/actions/AdjustmentKeyError.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/StoredBalance.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/persistence/RuntimeEntitlements.h"
#include "QuillmereKit/records/ActionReceipt.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/transactions/TimeBankTransactionController.h"
#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <memory>

namespace quillmere {

namespace {

using Outcome = AdjustTimeBankIntent::Outcome;
using platform::Instant;
using platform::store::Comparison;
using platform::store::Context;
using platform::store::Store;
using Receipts = platform::store::Filter<ActionReceipt>;

constexpr std::string_view kind = "manual";

bool isPossible(std::int64_t minutes) {
    constexpr std::int64_t most = TimeBankTransactionController::maximumAbsoluteMinutes;
    return minutes != 0 && -most <= minutes && minutes <= most;
}

std::string_view dialog(Outcome outcome, std::int64_t minutes) {
    switch (outcome) {
    case Outcome::recorded:
        return minutes < 0 ? "Time subtracted from your bank." : "Time added to your bank.";
    case Outcome::invalidAmount:
        return "Choose a nonzero amount up to 24 hours.";
    case Outcome::needsSetup:
        return "Open Quillmere and finish setup before changing your time bank.";
    }
    return {};
}

void checkKey(std::string_view key) {
    using Reason = AdjustmentKeyError::Reason;
    if (key.empty()) {
        throw AdjustmentKeyError(Reason::empty);
    }
    if (key.size() > AdjustTimeBankIntent::maximumKeyLength) {
        throw AdjustmentKeyError(Reason::tooLong);
    }
}

const ActionReceipt* findReceipt(Context& context, std::string_view key) {
    const auto found = context.fetch<ActionReceipt>(
        Receipts{}.where<&ActionReceiptValues::requestKey>(Comparison::equal, std::string(key)));
    return found.empty() ? nullptr : found.front();
}

/// The store as one run of the action has it.
class Run {
public:
    /// Opens and repairs it.
    explicit Run(const AdjustTimeBankIntent::Services& services)
        : services_(services),
          context_(open(services)->makeContext({services.clock, services.calendars})),
          settings_(DataStoreMaintenance::reconcileData(*context_, context_->calendar(),
                                                        services.clock.now(), true)) {}

    [[nodiscard]] bool isConfigured() const {
        return settings_.isAlive() && settings_.hasCompletedOnboarding();
    }

    void record(std::int64_t minutes) {
        TimeBankTransactionController::record(minutes, services_.clock.now(), "", kind, *context_);
    }

    /// Records the change and the key's receipt in one transaction, unless there is a receipt or
    /// setup is not complete.
    std::optional<AdjustTimeBankIntent::Booking> recordOnce(std::string_view key,
                                                            std::int64_t minutes) {
        const ActionReceipt* receipt = nullptr;
        context_->save([&] {
            receipt = findReceipt(*context_, key);
            if (receipt == nullptr && isConfigured()) {
                receipt = &insertWithReceipt(key, minutes);
            }
        });
        if (receipt == nullptr) {
            return std::nullopt;
        }
        if (receipt->minutes() != minutes) {
            throw AdjustmentKeyError(AdjustmentKeyError::Reason::standsForOtherAmount);
        }
        return AdjustTimeBankIntent::Booking{receipt->recordId(), receipt->balanceMinutes()};
    }

    void publish() {
        WidgetSnapshotBuilder::save(*context_, services_.clock.now(),
                                    WidgetSnapshotStore::chosenDefaults(services_.entitlements,
                                                                        services_.suite,
                                                                        services_.standard));
        services_.widgets.reloadAllTimelines();
    }

private:
    static std::shared_ptr<Store> open(const AdjustTimeBankIntent::Services& services) {
        auto store = QuillmerePersistence::makeContainer(
            false, false, RuntimeEntitlements::hasUsableAppGroup(services.entitlements),
            services.locations);
        if (services.keeper != nullptr) {
            *services.keeper = store;
        }
        return store;
    }

    const ActionReceipt& insertWithReceipt(std::string_view key, std::int64_t minutes) {
        const Instant now = services_.clock.now();
        const std::int64_t before = StoredBalance(*context_)
                                        .figures(context_->calendar().startOfDay(now), now)
                                        .balanceMinutes;
        const auto& change =
            TimeBankTransactionController::insert(minutes, now, "", kind, *context_);
        return context_->insert(std::make_unique<ActionReceipt>(ActionReceiptValues{
            .id = change.id(),
            .requestKey = std::string(key),
            .minutes = minutes,
            .balanceMinutes = settings_.startingBalanceMinutes() + before + minutes,
            .bookedAt = now}));
    }

    const AdjustTimeBankIntent::Services& services_;
    const std::unique_ptr<Context> context_;
    TimeBankSettings& settings_;
};

} // namespace

std::string AdjustTimeBankIntent::parameterSummary() const {
    return std::string(title) + " by " + std::to_string(minutes_) + " minutes";
}

AdjustTimeBankIntent::Result AdjustTimeBankIntent::perform(const Services& services) const {
    if (!isPossible(minutes_)) {
        return result(Outcome::invalidAmount);
    }
    Run run(services);
    const bool isConfigured = run.isConfigured();
    if (isConfigured) {
        run.record(minutes_);
    }
    run.publish();
    return result(isConfigured ? Outcome::recorded : Outcome::needsSetup);
}

AdjustTimeBankIntent::KeyedResult
AdjustTimeBankIntent::performOnce(std::string_view key, const Services& services) const {
    checkKey(key);
    if (!isPossible(minutes_)) {
        return {result(Outcome::invalidAmount), std::nullopt};
    }
    Run run(services);
    const auto booking = run.recordOnce(key, minutes_);
    run.publish();
    return {result(booking ? Outcome::recorded : Outcome::needsSetup), booking};
}

AdjustTimeBankIntent::Result AdjustTimeBankIntent::result(Outcome outcome) const {
    return {outcome, dialog(outcome, minutes_)};
}

} // namespace quillmere
