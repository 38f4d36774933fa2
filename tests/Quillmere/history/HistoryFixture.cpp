#include "tests/Quillmere/history/HistoryFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

namespace quillmere {

void HistoryFixture::record(int count) {
    for (int i = 0; i < count; ++i) {
        session().context().insert(std::make_unique<BalanceAdjustment>(
            platform::Uuid::random(), start - 3660.0 * i, 60, "change " + std::to_string(i),
            BalanceAdjustmentKind::manual, start, start));
    }
    session().context().save();
}

void HistoryFixture::removeAll() {
    session().context().removeAll<BalanceAdjustment>();
    session().context().save();
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<HistoryFixture>();
}

} // namespace quillmere
