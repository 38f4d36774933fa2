#include "Platform/json/Document.h"
#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveCodingError.h"

#include <algorithm>

namespace quillmere {

namespace {

using platform::Instant;
using platform::Uuid;
using platform::json::Object;
using platform::json::Value;

[[noreturn]] void fail(std::string_view key) {
    throw TimeBankArchiveCodingError("a value is missing or not of its type: " + std::string(key));
}

void read(const Value& value, std::optional<Instant>& result) {
    if (const auto seconds = value.number()) {
        result = Instant{*seconds};
    }
}

void read(const Value& value, std::optional<std::int64_t>& result) {
    result = value.integer();
}

void read(const Value& value, std::optional<bool>& result) {
    result = value.boolean();
}

void read(const Value& value, std::optional<std::string>& result) {
    result = value.string();
}

void read(const Value& value, std::optional<Uuid>& result) {
    if (const auto text = value.string()) {
        result = Uuid::parse(*text);
    }
}

void read(const Value& value, std::optional<std::vector<std::int64_t>>& result) {
    const auto array = value.array();
    if (!array) {
        return;
    }
    std::vector<std::int64_t> values;
    values.reserve(array->size());
    for (const Value element : *array) {
        const auto integer = element.integer();
        if (!integer) {
            return;
        }
        values.push_back(*integer);
    }
    result = std::move(values);
}

template <class T>
std::optional<T> optional(const Object& object, std::string_view key) {
    std::optional<T> result;
    const auto value = object.find(key);
    if (value && !value->isNull()) {
        read(*value, result);
        if (!result) {
            fail(key);
        }
    }
    return result;
}

template <class T>
T required(const Object& object, std::string_view key) {
    std::optional<T> result = optional<T>(object, key);
    if (!result) {
        fail(key);
    }
    return std::move(*result);
}

Object objectOf(const Value& value) {
    const auto object = value.object();
    if (!object) {
        throw TimeBankArchiveCodingError("something other than an object stands for a record");
    }
    return *object;
}

void decode(const Object& object, TimeBankArchive::WorkEntryRecord& record) {
    record = {.id = required<Uuid>(object, "id"),
              .startedAt = required<Instant>(object, "startedAt"),
              .endedAt = optional<Instant>(object, "endedAt"),
              .breakMinutes = required<std::int64_t>(object, "breakMinutes"),
              .note = required<std::string>(object, "note"),
              .createdAt = required<Instant>(object, "createdAt"),
              .modifiedAt = required<Instant>(object, "modifiedAt")};
}

void decode(const Object& object, TimeBankArchive::BalanceAdjustmentRecord& record) {
    record = {.id = required<Uuid>(object, "id"),
              .date = required<Instant>(object, "date"),
              .minutes = required<std::int64_t>(object, "minutes"),
              .note = required<std::string>(object, "note"),
              .kind = required<std::string>(object, "kind"),
              .createdAt = required<Instant>(object, "createdAt"),
              .modifiedAt = required<Instant>(object, "modifiedAt")};
}

void decode(const Object& object, TimeBankArchive::ScheduleRecord& record) {
    record = {.id = required<Uuid>(object, "id"),
              .effectiveFrom = required<Instant>(object, "effectiveFrom"),
              .weekdayMinutes = required<std::vector<std::int64_t>>(object, "weekdayMinutes"),
              .createdAt = required<Instant>(object, "createdAt"),
              .modifiedAt = required<Instant>(object, "modifiedAt")};
}

void decode(const Object& object, TimeBankArchive::SettingsRecord& record) {
    record = {.id = required<Uuid>(object, "id"),
              .calculationStartDate = required<Instant>(object, "calculationStartDate"),
              .startingBalanceMinutes = required<std::int64_t>(object, "startingBalanceMinutes"),
              .weekdayMinutes = required<std::vector<std::int64_t>>(object, "weekdayMinutes"),
              .quickActionMinutes =
                  optional<std::vector<std::int64_t>>(object, "quickActionMinutes"),
              .visibleAdjustmentKindsRawValue =
                  optional<std::string>(object, "visibleAdjustmentKindsRawValue"),
              .customAdjustmentCategoriesRawValue =
                  optional<std::string>(object, "customAdjustmentCategoriesRawValue"),
              .hasCompletedOnboarding = required<bool>(object, "hasCompletedOnboarding"),
              .modifiedAt = required<Instant>(object, "modifiedAt")};
}

template <class Record>
void decode(const Object& object, std::string_view key, std::vector<Record>& records) {
    const auto value = object.find(key);
    const auto array = value ? value->array() : std::nullopt;
    if (!array) {
        fail(key);
    }
    records.reserve(std::min(array->size(), TimeBankArchive::maximumWorkEntries));
    for (const Value element : *array) {
        decode(objectOf(element), records.emplace_back());
    }
}

TimeBankArchive decoded(const Object& object) {
    TimeBankArchive archive;
    archive.schemaVersion = required<std::int64_t>(object, "schemaVersion");
    archive.exportedAt = required<Instant>(object, "exportedAt");
    decode(object, "workEntries", archive.workEntries);
    decode(object, "balanceAdjustments", archive.balanceAdjustments);
    decode(object, "schedules", archive.schedules);
    decode(object, "settings", archive.settings);
    return archive;
}

} // namespace

TimeBankArchive TimeBankArchive::decodeJSON(std::string_view bytes) try {
    TimeBankArchive archive = decoded(objectOf(platform::json::parse(bytes).root()));
    archive.validate();
    return archive;
} catch (const platform::json::JsonError& error) {
    throw TimeBankArchiveCodingError(error.what());
}

} // namespace quillmere
