#include "Quillmere/editor/AdjustmentDirection.h"

namespace quillmere {

std::string_view rawValue(AdjustmentDirection direction) {
    return direction == AdjustmentDirection::credit ? "Add" : "Deduct";
}

} // namespace quillmere
