#pragma once

#include "QuillmereKit/widget/WidgetRecordRevision.h"

#include <cstdint>

namespace quillmere {

/// The versions of all records of a type, as far as it takes to see whether any is another one: two
/// are equal when the same versions were added to them, in whatever order. It stands for the list
/// of them, sorted by identifier, which a history of 100,000 changes would make anew each time.
///
/// Where a single record was changed, inserted or deleted, the two never compare equal; where
/// several were, and as many inserted as deleted, they do by accident once in 2^64 times.
class WidgetRecordRevisions {
public:
    void add(const WidgetRecordRevision& revision) {
        ++count_;
        sum_ += std::hash<WidgetRecordRevision>{}(revision);
    }

    friend bool operator==(const WidgetRecordRevisions&, const WidgetRecordRevisions&) = default;

private:
    std::uint64_t count_ = 0;
    std::uint64_t sum_ = 0; ///< of the hashes
};

} // namespace quillmere
