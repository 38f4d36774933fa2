#include "Quillmere/app/KeyRepeat.h"

#include <QtGui/QKeyEvent>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace quillmere {

TEST(KeyRepeatTest, TellsAHeldKeyFromOneThatIsPressedAgain) {
    struct Event {
        QEvent::Type type;
        int key;
        std::uint64_t time;
        bool isMarked;
        bool isRepeated;
    };
    constexpr auto press = QEvent::KeyPress;
    constexpr auto release = QEvent::KeyRelease;
    const struct {
        const char* name;
        std::vector<Event> events;
    } cases[] = {
        {"the platform knows",
         {{press, 1, 10, false, false}, {release, 1, 60, true, true}, {press, 1, 60, true, true}}},
        {"the platform missed it",
         {{press, 1, 10, false, false},
          {release, 1, 60, false, false},
          {press, 1, 60, false, true}}},
        {"pressed again", {{release, 1, 60, false, false}, {press, 1, 61, false, false}}},
        {"another key", {{release, 1, 60, false, false}, {press, 2, 60, false, false}}},
        {"without a clock", {{release, 1, 0, false, false}, {press, 1, 0, false, false}}},
    };
    for (const auto& [name, events] : cases) {
        SCOPED_TRACE(name);
        KeyRepeat repeat;
        for (const Event& one : events) {
            QKeyEvent event(one.type, one.key, Qt::NoModifier, {}, one.isMarked);
            event.setTimestamp(one.time);
            EXPECT_EQ(repeat.isRepeated(event), one.isRepeated);
        }
    }
}

} // namespace quillmere
