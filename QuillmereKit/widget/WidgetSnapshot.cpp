#include "QuillmereKit/widget/WidgetSnapshot.h"

#include "Platform/json/Document.h"
#include "Platform/json/Writer.h"

#include <vector>

namespace quillmere {

namespace {

using platform::json::Object;
using platform::json::Value;

/// A member that may be left out or null.
std::optional<Value> present(const Object& object, std::string_view key) {
    const auto value = object.find(key);
    return value && !value->isNull() ? value : std::nullopt;
}

double requiredNumber(const Object& object, std::string_view key) {
    const auto value = object.find(key);
    const auto number = value ? value->number() : std::nullopt;
    if (!number) {
        throw platform::json::JsonError("a required number is missing");
    }
    return *number;
}

template <class T>
T required(std::optional<T> value) {
    if (!value) {
        throw platform::json::JsonError("a value has the wrong type");
    }
    return *value;
}

platform::Instant instant(double secondsSince2001) {
    return platform::referenceDate2001 + secondsSince2001;
}

std::vector<std::int64_t> presets(const Object& object) {
    constexpr auto& defaults = QuickActionConfiguration::defaultMinutes;
    const auto value = present(object, "quickActionMinutes");
    if (!value) {
        return {defaults.begin(), defaults.end()};
    }
    std::vector<std::int64_t> minutes;
    for (const Value element : required(value->array())) {
        minutes.push_back(required(element.integer()));
    }
    return minutes;
}

std::optional<platform::Instant> runningSinceIn(const Object& object) {
    const auto value = present(object, "runningSince");
    return value ? std::optional(instant(required(value->number()))) : std::nullopt;
}

bool isConfiguredIn(const Object& object) {
    const auto value = present(object, "isConfigured");
    return value ? required(value->boolean()) : true;
}

} // namespace

WidgetSnapshot::WidgetSnapshot(double balance, double worked, double expected,
                               std::optional<platform::Instant> running,
                               std::span<const std::int64_t> minutes, platform::Instant updated,
                               bool configured)
    : balanceSeconds(balance),
      todayWorkedSeconds(worked),
      todayExpectedSeconds(expected),
      runningSince(running),
      quickActionMinutes(QuickActionConfiguration::normalized(minutes)),
      updatedAt(updated),
      isConfigured(configured) {
}

const WidgetSnapshot& WidgetSnapshot::placeholder(const platform::Clock& clock) {
    static const WidgetSnapshot shared(16'200, 5'400, 1'800, std::nullopt,
                                       QuickActionConfiguration::defaultMinutes, clock.now(), true);
    return shared;
}

const WidgetSnapshot& WidgetSnapshot::empty(const platform::Clock& clock) {
    static const WidgetSnapshot shared(
        0, 0, 0, std::nullopt, QuickActionConfiguration::defaultMinutes, clock.now(), false);
    return shared;
}

WidgetSnapshot WidgetSnapshot::displayed(platform::Instant at,
                                         const platform::Calendar& calendar) const {
    WidgetSnapshot copy = *this;
    if (!calendar.isSameDay(updatedAt, at)) {
        copy.todayWorkedSeconds = 0;
        copy.todayExpectedSeconds = 0;
    }
    return copy;
}

std::optional<std::string> WidgetSnapshot::encodedJSON() const try {
    std::string json;
    platform::json::Writer writer(json);
    writer.beginObject();
    writer.key("balanceSeconds").number(balanceSeconds);
    writer.key("todayWorkedSeconds").number(todayWorkedSeconds);
    writer.key("todayExpectedSeconds").number(todayExpectedSeconds);
    if (runningSince) {
        writer.key("runningSince").number(*runningSince - platform::referenceDate2001);
    }
    writer.key("quickActionMinutes").beginArray();
    for (const std::int64_t minutes : quickActionMinutes) {
        writer.integer(minutes);
    }
    writer.endArray();
    writer.key("updatedAt").number(updatedAt - platform::referenceDate2001);
    writer.key("isConfigured").boolean(isConfigured);
    writer.endObject();
    return json;
} catch (const platform::json::JsonError&) {
    return std::nullopt;
}

std::optional<WidgetSnapshot> WidgetSnapshot::decodeJSON(std::string_view json) try {
    const platform::json::Document document = platform::json::parse(json);
    const Object object = required(document.root().object());
    return WidgetSnapshot(
        requiredNumber(object, "balanceSeconds"), requiredNumber(object, "todayWorkedSeconds"),
        requiredNumber(object, "todayExpectedSeconds"), runningSinceIn(object), presets(object),
        instant(requiredNumber(object, "updatedAt")), isConfiguredIn(object));
} catch (const platform::json::JsonError&) {
    return std::nullopt;
}

} // namespace quillmere
