#include "QuillmereKit/maintenance/StoredBalance.h"

#include "QuillmereKit/maintenance/NoteWords.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <algorithm>
#include <vector>

namespace quillmere {

using platform::Instant;
using platform::store::RowKey;

namespace {

/// With more changes than these to count one by one, reading all is no slower by much.
constexpr std::size_t mostListed = RepairMemory::worthRemembering;

void add(std::int64_t& sum, std::int64_t minutes) {
    if (__builtin_add_overflow(sum, minutes, &sum)) {
        throw platform::store::StoreError(platform::store::StoreFault::misuse,
                                          "the sum of the changes leaves 64 bits");
    }
}

} // namespace

StoredBalance::StoredBalance(platform::store::Context& context)
    : context_(context), memory_(context, "summedUp.changes") {
}

StoredBalance::Figures StoredBalance::figures(Instant dayStart, Instant through) {
    if (!recall(dayStart)) {
        readAll(dayStart);
    }
    Figures figures{.balanceMinutes = earlierMinutes_};
    for (const auto& [key, change] : listed_) {
        if (!change || !(change->date <= through)) {
            continue;
        }
        add(figures.balanceMinutes, change->minutes);
        if (change->date >= dayStart) {
            add(change->minutes > 0 ? figures.addedMinutes : figures.takenMinutes, change->minutes);
        }
    }
    return figures;
}

/// Starts from the note and what was written since. Answers whether that was enough.
bool StoredBalance::recall(Instant dayStart) {
    const auto mark = memory_.recall(context_.clock().now());
    if (!mark) {
        return false;
    }
    std::string_view words = mark->finding;
    const auto lastKey = NoteWords::number<std::int64_t>(NoteWords::take(words));
    const auto from = NoteWords::number<double>(NoteWords::take(words));
    const auto minutes = NoteWords::number<std::int64_t>(NoteWords::take(words));
    if (!lastKey || !from || !minutes || dayStart < Instant{*from}) {
        return false;
    }
    lastKey_ = RowKey{*lastKey};
    earlierMinutes_ = *minutes;
    const std::vector<RowKey> laterKeys = NoteWords::keys(words);
    if (!takeInNewer(*mark, laterKeys)) {
        return false;
    }
    for (const RowKey key : laterKeys) {
        const auto* record =
            listed_.contains(key) ? nullptr : context_.find<BalanceAdjustment>(key);
        if (record != nullptr) {
            listed_[key] = Change{record->date(), record->minutes()};
        }
    }
    return true;
}

bool StoredBalance::takeInNewer(const RepairMark& mark, const std::vector<RowKey>& laterKeys) {
    return context_.scanChangedSince<BalanceAdjustment>(
        mark.revision, [&](RowKey key, const Values* values) {
            const bool isSummedUp =
                key <= lastKey_ && std::ranges::find(laterKeys, key) == laterKeys.end();
            if (isSummedUp || listed_.size() > mostListed) {
                return false;
            }
            listed_[key] = values == nullptr ? std::nullopt
                                             : std::optional(Change{values->date, values->minutes});
            return true;
        });
}

void StoredBalance::readAll(Instant dayStart) {
    mark_.revision = context_.revision();
    lastKey_ = RowKey::none;
    earlierMinutes_ = 0;
    listed_.clear();
    listedFrom_ = dayStart;
    context_.scan<BalanceAdjustment>({}, [&](RowKey key, const Values& values) {
        ++looked_;
        lastKey_ = std::max(lastKey_, key);
        if (values.date < dayStart) {
            add(earlierMinutes_, values.minutes);
        } else {
            listed_[key] = Change{values.date, values.minutes};
        }
    });
}

void StoredBalance::remember() {
    if (listed_.size() > mostListed || context_.hasChanges()) {
        return;
    }
    std::vector<RowKey> keys;
    for (const auto& entry : listed_) {
        keys.push_back(entry.first);
    }
    mark_.finding = NoteWords::text(static_cast<std::int64_t>(lastKey_)) + ' ' +
                    NoteWords::text(listedFrom_.secondsSince1970) + ' ' +
                    NoteWords::text(earlierMinutes_) + ' ' + NoteWords::list(keys);
    memory_.finish(mark_, false, looked_);
}

} // namespace quillmere
