#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/store/Store.h"
#include "benchmarks/Folder.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <utility>

namespace platform::store::benchmarks {

using quillmere::benchmarks::Folder;

/// A record of ordinary size: a dated, signed amount with a note.
struct ChangeValues {
    Uuid id;
    Instant date;
    std::int64_t minutes = 0;
    std::string note;
    std::string kind = "manual";
    Instant createdAt;
    Instant modifiedAt;
};

/// The change with this number, made up; two are never alike.
inline ChangeValues madeUp(std::int64_t number) {
    Uuid::Bytes bytes{};
    auto mixed = static_cast<std::uint64_t>(number) * 0x9e3779b97f4a7c15U;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes.at(i) = static_cast<std::uint8_t>(mixed >> (i % 8 * 8));
        mixed = i == 7 ? mixed * 0xbf58476d1ce4e5b9U : mixed;
    }
    const Instant date{1'000'000'000.25 + static_cast<double>(number) * 4000};
    return {Uuid(bytes), date,    number % 481 - 240, "A note of ordinary length", "manual",
            date + 1,    date + 2};
}

} // namespace platform::store::benchmarks

template <>
struct platform::store::RecordFields<platform::store::benchmarks::ChangeValues> {
    using V = benchmarks::ChangeValues;
    static constexpr std::string_view table = "change";
    static constexpr auto fields = std::tuple{Field{"id", &V::id},
                                              Field{"date", &V::date},
                                              Field{"minutes", &V::minutes},
                                              Field{"note", &V::note},
                                              Field{"kind", &V::kind},
                                              Field{"created_at", &V::createdAt},
                                              Field{"modified_at", &V::modifiedAt}};
};

namespace platform::store::benchmarks {

class Change final : public Record<ChangeValues> {
public:
    explicit Change(ChangeValues values) : Record(std::move(values)) {}
    void setMinutes(std::int64_t minutes) { assign<&ChangeValues::minutes>(minutes); }
};

struct ChangeRow {
    RowRef ref;
    double date;
    std::int64_t minutes;

    static std::optional<ChangeRow> make(RowRef ref, const ChangeValues& values) {
        return ChangeRow{ref, values.date.secondsSince1970, values.minutes};
    }
    friend bool operator<(const ChangeRow& a, const ChangeRow& b) { return a.date > b.date; }
    friend bool operator==(const ChangeRow&, const ChangeRow&) = default;
};

inline constexpr std::int64_t changeCount = 100'000;

inline std::shared_ptr<Store> openStore(const std::filesystem::path& file) {
    return Store::open(Schema{0x42454e43, 1}.add<Change>(), {.file = file});
}

inline std::unique_ptr<Context> makeContext(Store& store) {
    static const SystemClock clock;
    static const FixedCalendarSource calendars(
        Calendar(TimeZone::utc(), Region::fromLocale("en_US")));
    return store.makeContext({clock, calendars});
}

inline void addChanges(Context& context, std::int64_t count) {
    for (std::int64_t i = 0; i < count; ++i) {
        context.insert(std::make_unique<Change>(madeUp(i)));
    }
}

/// A store of 100,000 changes, closed; made once.
inline const std::filesystem::path& largeStore() {
    static const Folder folder;
    static const std::filesystem::path file = [] {
        const auto store = openStore(folder / "Large.sqlite");
        const auto context = makeContext(*store);
        addChanges(*context, changeCount);
        context->save();
        return folder / "Large.sqlite";
    }();
    return file;
}

} // namespace platform::store::benchmarks
