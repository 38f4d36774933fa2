#include "tests/Quillmere/reports/ReportsFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

namespace quillmere {

void ReportsFixture::reset() {
    session().context().removeAll<BalanceAdjustment>();
    session().context().save();
    model_ = std::make_unique<ReportsViewModel>(session(), appState(), folders_);
    emit modelChanged();
}

void ReportsFixture::record(int minutes, int daysAgo, const QString& note) {
    session().context().insert(std::make_unique<BalanceAdjustment>(
        platform::Uuid::random(), start - daysAgo * 86'400.0, minutes, note.toStdString(),
        BalanceAdjustmentKind::manual, start, start));
    session().context().save();
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<ReportsFixture>();
}

} // namespace quillmere
