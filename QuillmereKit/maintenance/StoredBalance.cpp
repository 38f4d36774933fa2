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

constexpr std::string_view noteName = "summedUp.changes";

void add(std::int64_t& sum, std::int64_t minutes) {
    if (__builtin_add_overflow(sum, minutes, &sum)) {
        throw platform::store::StoreError(platform::store::StoreFault::misuse,
                                          "the sum of the changes leaves 64 bits");
    }
}

template <class Change>
void add(StoredBalance::Figures& figures, const Change& change, Instant dayStart) {
    add(figures.balanceMinutes, change.minutes);
    if (change.date >= dayStart) {
        add(change.minutes > 0 ? figures.addedMinutes : figures.takenMinutes, change.minutes);
    }
}

} // namespace

StoredBalance::StoredBalance(platform::store::Context& context)
    : context_(context), memory_(context, noteName) {
}

void StoredBalance::forget(platform::store::Context& context) {
    context.setNote(noteName, "");
}

StoredBalance::Figures StoredBalance::figures(Instant dayStart, Instant through) {
    if (!recall(dayStart, through)) {
        readAll(dayStart, through);
    }
    return counted(dayStart, through);
}

std::int64_t StoredBalance::balanceMinutes(Instant through) {
    if (recall(through, through)) {
        return counted(through, through).balanceMinutes;
    }
    return context_.sum<BalanceAdjustment, &BalanceAdjustmentValues::minutes>(
        platform::store::Filter<BalanceAdjustment>{}.where<&BalanceAdjustmentValues::date>(
            platform::store::Comparison::lessOrEqual, through));
}

StoredBalance::Figures StoredBalance::counted(Instant dayStart, Instant through) const {
    Figures figures = summedUp_;
    for (const auto& [key, change] : listed_) {
        if (change && change->date <= through) {
            add(figures, *change, dayStart);
        }
    }
    return figures;
}

/// Starts from the note and what was written since. Answers whether that was enough.
bool StoredBalance::recall(Instant dayStart, Instant through) {
    const auto mark = memory_.recall(context_.clock().now());
    if (!mark || !readNote(mark->finding, dayStart, through) || !takeInNewer(*mark)) {
        return false;
    }
    for (const RowKey key : laterKeys_) {
        const auto* record =
            listed_.contains(key) ? nullptr : context_.find<BalanceAdjustment>(key);
        if (record != nullptr) {
            listed_[key] = Change{record->date(), record->minutes()};
        }
    }
    return true;
}

std::string StoredBalance::noteWords() const {
    std::vector<RowKey> keys;
    for (const auto& entry : listed_) {
        keys.push_back(entry.first);
    }
    using NoteWords::text;
    return text(static_cast<std::int64_t>(lastKey_)) + ' ' + text(dayStart_.secondsSince1970) +
           ' ' + text(through_.secondsSince1970) + ' ' + text(summedUp_.balanceMinutes) + ' ' +
           text(summedUp_.addedMinutes) + ' ' + text(summedUp_.takenMinutes) + ' ' +
           NoteWords::list(keys);
}

/// Answers whether the note serves these times: the same day later on, or another day after it.
bool StoredBalance::readNote(std::string_view words, Instant dayStart, Instant through) {
    const auto whole = [&] { return NoteWords::number<std::int64_t>(NoteWords::take(words)); };
    const auto instant = [&] { return NoteWords::number<double>(NoteWords::take(words)); };
    const auto lastKey = whole();
    const auto notedStart = instant();
    const auto notedThrough = instant();
    const auto balance = whole();
    const auto added = whole();
    const auto taken = whole();
    if (!lastKey || !notedStart || !notedThrough || !balance || !added || !taken) {
        return false;
    }
    lastKey_ = RowKey{*lastKey};
    laterKeys_ = NoteWords::keys(words);
    const bool isSameDay = Instant{*notedStart} == dayStart;
    summedUp_ = isSameDay ? Figures{*balance, *added, *taken} : Figures{*balance, 0, 0};
    return isSameDay ? Instant{*notedThrough} <= through : Instant{*notedThrough} < dayStart;
}

bool StoredBalance::takeInNewer(const RepairMark& mark) {
    return context_.scanChangedSince<BalanceAdjustment>(
        mark.revision, [this](RowKey key, const BalanceAdjustmentValues* values) {
            const bool isSummedUp =
                key <= lastKey_ && std::ranges::find(laterKeys_, key) == laterKeys_.end();
            if (isSummedUp || listed_.size() > mostListed) {
                return false;
            }
            listed_[key] = values == nullptr ? std::nullopt
                                             : std::optional(Change{values->date, values->minutes});
            return true;
        });
}

void StoredBalance::readAll(Instant dayStart, Instant through) {
    mark_.revision = context_.revision();
    lastKey_ = RowKey::none;
    summedUp_ = {};
    dayStart_ = dayStart;
    through_ = through;
    listed_.clear();
    context_.scan<BalanceAdjustment>({}, [&](RowKey key, const BalanceAdjustmentValues& values) {
        const Change change{values.date, values.minutes};
        ++looked_;
        lastKey_ = std::max(lastKey_, key);
        if (change.date <= through) {
            add(summedUp_, change, dayStart);
        } else {
            listed_[key] = change;
        }
    });
}

void StoredBalance::remember() {
    if (listed_.size() > mostListed || context_.hasChanges()) {
        return;
    }
    mark_.finding = noteWords();
    try {
        memory_.finish(mark_, false, looked_);
    } catch (const platform::store::StoreError&) {
        context_.rollback(); // nothing but the note is pending
    }
}

} // namespace quillmere
