#include "QuillmereKit/archive/TimeBankArchiveMergeResult.h"

#include "QuillmereKit/calculation/Fatal.h"

namespace quillmere {

std::int64_t TimeBankArchiveMergeResult::total() const {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(inserted, updated, &sum) ||
        __builtin_add_overflow(sum, unchanged, &sum)) {
        fatal("the number of merged records leaves 64 bits");
    }
    return sum;
}

} // namespace quillmere
