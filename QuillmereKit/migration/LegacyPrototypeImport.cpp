#include "QuillmereKit/migration/LegacyPrototypeImport.h"

#include "Platform/json/Document.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <memory>
#include <optional>
#include <unordered_set>

namespace quillmere::LegacyPrototypeImport {

namespace {

using platform::json::Object;
using platform::json::Value;

template <class T>
T required(std::optional<T> value, const char* what) {
    if (!value) {
        throw LegacyPrototypeError(std::string("a prototype entry has no valid ") + what);
    }
    return *value;
}

Value member(const Object& object, const char* key) {
    return required(object.find(key), key);
}

LegacyBalanceEntry entry(const Value& value) {
    const Object object = required(value.object(), "form");
    return {
        .id = required(platform::Uuid::parse(required(member(object, "id").string(), "id")), "id"),
        .minutes = required(member(object, "minutes").integer(), "minutes"),
        .date = platform::referenceDate2001 + required(member(object, "date").number(), "date"),
        .note = std::string(required(member(object, "note").string(), "note"))};
}

void insert(const std::vector<LegacyBalanceEntry>& entries, platform::store::Context& context) {
    std::unordered_set<platform::Uuid> known;
    context.scan<BalanceAdjustment>(
        {}, [&](platform::store::RowKey, const auto& values) { known.insert(values.id); });
    for (const LegacyBalanceEntry& entry : entries) {
        if (!known.contains(entry.id)) {
            const platform::Instant createdAt = context.clock().now();
            const platform::Instant modifiedAt = context.clock().now();
            context.insert(std::make_unique<BalanceAdjustment>(
                entry.id, entry.date, entry.minutes, entry.note, BalanceAdjustmentKind::manual,
                createdAt, modifiedAt));
        }
    }
}

} // namespace

std::vector<LegacyBalanceEntry> decode(std::string_view bytes) try {
    const platform::json::Document document = platform::json::parse(bytes);
    std::vector<LegacyBalanceEntry> entries;
    for (const Value value : required(document.root().array(), "list")) {
        entries.push_back(entry(value));
    }
    return entries;
} catch (const platform::json::JsonError& error) {
    throw LegacyPrototypeError(error.what());
}

void run(platform::store::Context& context, platform::Preferences& standard,
         const platform::Preferences& prototype) {
    if (standard.boolean(completedKey).value_or(false)) {
        return;
    }
    if (const auto bytes = prototype.data(entriesKey)) {
        insert(decode(*bytes), context);
        context.save();
    }
    standard.setBoolean(completedKey, true);
}

} // namespace quillmere::LegacyPrototypeImport
