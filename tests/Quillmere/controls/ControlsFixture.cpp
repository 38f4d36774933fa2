#include "tests/Quillmere/support/QmlFixture.h"

namespace quillmere {

// Controls need nothing to be tested with.
std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<QObject>();
}

} // namespace quillmere
