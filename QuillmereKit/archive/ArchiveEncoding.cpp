#include "Platform/json/Writer.h"
#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveCodingError.h"

namespace quillmere {

namespace {

using platform::Instant;
using platform::json::Writer;

/// Writes the members of records and arrays; callers name the keys in sorted order.
class ArchiveEncoder {
public:
    explicit ArchiveEncoder(std::string& out) : writer_(out, Writer::Layout::pretty) {}

    void write(const TimeBankArchive& archive) {
        writer_.beginObject();
        records("balanceAdjustments", archive.balanceAdjustments);
        member("exportedAt", archive.exportedAt);
        records("schedules", archive.schedules);
        member("schemaVersion", archive.schemaVersion);
        records("settings", archive.settings);
        records("workEntries", archive.workEntries);
        writer_.endObject();
    }

private:
    template <class Record>
    void records(std::string_view key, const std::vector<Record>& records) {
        writer_.key(key).beginArray();
        for (const Record& record : records) {
            writer_.beginObject();
            members(record);
            writer_.endObject();
        }
        writer_.endArray();
    }

    void members(const TimeBankArchive::BalanceAdjustmentRecord& record) {
        member("createdAt", record.createdAt);
        member("date", record.date);
        member("id", record.id);
        member("kind", record.kind);
        member("minutes", record.minutes);
        member("modifiedAt", record.modifiedAt);
        member("note", record.note);
    }

    void members(const TimeBankArchive::WorkEntryRecord& record) {
        member("breakMinutes", record.breakMinutes);
        member("createdAt", record.createdAt);
        member("endedAt", record.endedAt);
        member("id", record.id);
        member("modifiedAt", record.modifiedAt);
        member("note", record.note);
        member("startedAt", record.startedAt);
    }

    void members(const TimeBankArchive::ScheduleRecord& record) {
        member("createdAt", record.createdAt);
        member("effectiveFrom", record.effectiveFrom);
        member("id", record.id);
        member("modifiedAt", record.modifiedAt);
        member("weekdayMinutes", record.weekdayMinutes);
    }

    void members(const TimeBankArchive::SettingsRecord& record) {
        member("calculationStartDate", record.calculationStartDate);
        member("customAdjustmentCategoriesRawValue", record.customAdjustmentCategoriesRawValue);
        writer_.key("hasCompletedOnboarding").boolean(record.hasCompletedOnboarding);
        member("id", record.id);
        member("modifiedAt", record.modifiedAt);
        member("quickActionMinutes", record.quickActionMinutes);
        member("startingBalanceMinutes", record.startingBalanceMinutes);
        member("visibleAdjustmentKindsRawValue", record.visibleAdjustmentKindsRawValue);
        member("weekdayMinutes", record.weekdayMinutes);
    }

    void member(std::string_view key, Instant value) {
        writer_.key(key).number(value.secondsSince1970);
    }
    void member(std::string_view key, std::int64_t value) { writer_.key(key).integer(value); }
    void member(std::string_view key, const std::string& value) { writer_.key(key).string(value); }
    void member(std::string_view key, const platform::Uuid& value) {
        writer_.key(key).string(value.text());
    }
    void member(std::string_view key, const std::vector<std::int64_t>& values) {
        writer_.key(key).beginArray();
        for (const std::int64_t value : values) {
            writer_.integer(value);
        }
        writer_.endArray();
    }
    template <class T>
    void member(std::string_view key, const std::optional<T>& value) {
        if (value) {
            member(key, *value);
        }
    }

    Writer writer_;
};

} // namespace

std::string TimeBankArchive::encodedJSON() const try {
    constexpr std::size_t usualRecordBytes = 300;
    std::string out;
    out.reserve((recordCount() + 1) * usualRecordBytes);
    ArchiveEncoder(out).write(*this);
    return out;
} catch (const platform::json::JsonError& error) {
    throw TimeBankArchiveCodingError(error.what());
}

} // namespace quillmere
