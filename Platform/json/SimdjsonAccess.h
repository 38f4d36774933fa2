#pragma once

#include "Platform/json/Value.h"

#include <simdjson.h>

#include <bit>

/// The one place that knows how a `Position` and the library's own handles correspond. It keeps the
/// library's very large header out of ours.
namespace platform::json {

/// A handle of the library (element, iterator) at `position`.
template <typename Handle>
Handle handleAt(Position position) {
    static_assert(sizeof(Handle) == sizeof(simdjson::internal::tape_ref));
    const simdjson::internal::tape_ref tape(
        static_cast<const simdjson::dom::document*>(position.document), position.index);
    return std::bit_cast<Handle>(tape);
}

/// The position of a handle of the library.
template <typename Handle>
Position positionOf(const Handle& handle) {
    static_assert(sizeof(Handle) == sizeof(simdjson::internal::tape_ref));
    const auto tape = std::bit_cast<simdjson::internal::tape_ref>(handle);
    return {tape.doc, tape.json_index};
}

} // namespace platform::json
