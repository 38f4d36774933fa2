#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"

#include <cstdint>
#include <optional>
#include <string>
#include <tuple>

namespace quillmere {

/// The fields of a `WorkEntry`, in the order they are stored.
struct WorkEntryValues {
    platform::Uuid id;
    platform::Instant startedAt;
    std::optional<platform::Instant> endedAt;
    std::int64_t breakMinutes = 0;
    std::string note;
    platform::Instant createdAt;
    platform::Instant modifiedAt;

    friend bool operator==(const WorkEntryValues&, const WorkEntryValues&) = default;
};

} // namespace quillmere

template <>
struct platform::store::RecordFields<quillmere::WorkEntryValues> {
    using V = quillmere::WorkEntryValues;
    static constexpr std::string_view table = "work_entry";
    static constexpr auto fields = std::tuple{Field{"id", &V::id},
                                              Field{"started_at", &V::startedAt},
                                              Field{"ended_at", &V::endedAt},
                                              Field{"break_minutes", &V::breakMinutes},
                                              Field{"note", &V::note},
                                              Field{"created_at", &V::createdAt},
                                              Field{"modified_at", &V::modifiedAt}};
};
