#pragma once

#include <cstdint>

class QKeyEvent;

namespace quillmere {

/// Tells the presses of a key that is held down from those of a key that is pressed again. Qt's X11
/// platform takes a release and a press for a repetition only if both are there when it looks; on a
/// busy machine some are not. They carry one time stamp all the same, which no finger manages.
class KeyRepeat {
public:
    /// Takes the key events of the program in their order.
    [[nodiscard]] bool isRepeated(const QKeyEvent& event);

private:
    int key_ = 0;
    std::uint64_t releasedAt_ = 0; ///< milliseconds of the display's clock; 0 is unknown
};

} // namespace quillmere
