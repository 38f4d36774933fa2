#pragma once

#include "Platform/base/Clock.h"
#include "Platform/store/Record.h"
#include "QuillmereKit/records/WorkEntryValues.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace quillmere {

/// One worked interval. Setters never touch `modifiedAt`; whoever writes keeps it true.
class WorkEntry final : public platform::store::Record<WorkEntryValues> {
public:
    explicit WorkEntry(Values values) : Record(std::move(values)) {}

    /// Stores everything as given.
    WorkEntry(platform::Uuid id, platform::Instant startedAt,
              std::optional<platform::Instant> endedAt, std::int64_t breakMinutes, std::string note,
              platform::Instant createdAt, platform::Instant modifiedAt);

    /// A new running record: random id, started, created and modified now.
    [[nodiscard]] static std::unique_ptr<WorkEntry> create(const platform::Clock& clock);

    [[nodiscard]] const platform::Uuid& id() const { return values().id; }
    [[nodiscard]] platform::Instant startedAt() const { return values().startedAt; }
    /// Absent while the entry is running.
    [[nodiscard]] std::optional<platform::Instant> endedAt() const { return values().endedAt; }
    /// Unpaid break inside the interval.
    [[nodiscard]] std::int64_t breakMinutes() const { return values().breakMinutes; }
    [[nodiscard]] const std::string& note() const { return values().note; }
    [[nodiscard]] platform::Instant createdAt() const { return values().createdAt; }
    [[nodiscard]] platform::Instant modifiedAt() const { return values().modifiedAt; }

    void setStartedAt(platform::Instant instant) { assign<&Values::startedAt>(instant); }
    void setEndedAt(std::optional<platform::Instant> instant) { assign<&Values::endedAt>(instant); }
    void setBreakMinutes(std::int64_t minutes) { assign<&Values::breakMinutes>(minutes); }
    void setNote(std::string note) { assign<&Values::note>(std::move(note)); }
    void setCreatedAt(platform::Instant instant) { assign<&Values::createdAt>(instant); }
    void setModifiedAt(platform::Instant instant) { assign<&Values::modifiedAt>(instant); }

    [[nodiscard]] bool isRunning() const { return !values().endedAt.has_value(); }

    /// Seconds from the start to the end (to `asOf` while running) without the break, never below
    /// 0.
    [[nodiscard]] double workedSeconds(platform::Instant asOf) const;
};

} // namespace quillmere
