#pragma once

#include "Platform/store/Record.h"
#include "Platform/store/Schema.h"

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <utility>

namespace platform::store::test {

/// A record with a field of every type.
struct ReminderValues {
    Uuid id = Uuid::random();
    std::int64_t minutes = 0;
    bool isDone = false;
    std::string title;
    Instant due{0};
    std::optional<Instant> endedAt;

    friend bool operator==(const ReminderValues&, const ReminderValues&) = default;
};

struct TagValues {
    Uuid id = Uuid::random();
    std::string name;
};

} // namespace platform::store::test

template <>
struct platform::store::RecordFields<platform::store::test::ReminderValues> {
    using V = test::ReminderValues;
    static constexpr std::string_view table = "reminder";
    static constexpr auto fields = std::tuple{
        Field{"id", &V::id},       Field{"minutes", &V::minutes}, Field{"is_done", &V::isDone},
        Field{"title", &V::title}, Field{"due", &V::due},         Field{"ended_at", &V::endedAt}};
};

template <>
struct platform::store::RecordFields<platform::store::test::TagValues> {
    using V = test::TagValues;
    static constexpr std::string_view table = "tag";
    static constexpr std::string_view uniqueColumn = "id";
    static constexpr auto fields = std::tuple{Field{"id", &V::id}, Field{"name", &V::name}};
};

namespace platform::store::test {

class Reminder final : public Record<ReminderValues> {
public:
    explicit Reminder(ReminderValues values = {}) : Record(std::move(values)) {}

    void setId(const Uuid& id) { assign<&ReminderValues::id>(id); }
    void setMinutes(std::int64_t minutes) { assign<&ReminderValues::minutes>(minutes); }
    void setDone(bool isDone) { assign<&ReminderValues::isDone>(isDone); }
    void setTitle(std::string title) { assign<&ReminderValues::title>(std::move(title)); }
    void setDue(Instant due) { assign<&ReminderValues::due>(due); }
    void setEndedAt(std::optional<Instant> endedAt) { assign<&ReminderValues::endedAt>(endedAt); }
};

class Tag final : public Record<TagValues> {
public:
    explicit Tag(TagValues values = {}) : Record(std::move(values)) {}

    void setName(std::string name) { assign<&TagValues::name>(std::move(name)); }
};

inline constexpr std::int32_t testApplicationId = 0x51544553;

inline Schema testSchema(int version = 1) {
    return Schema{testApplicationId, version}.add<Reminder>().add<Tag>();
}

} // namespace platform::store::test
