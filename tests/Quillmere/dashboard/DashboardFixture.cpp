#include "tests/Quillmere/dashboard/DashboardFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

#include <QtGui/QDesktopServices>

namespace quillmere {

DashboardFixture::DashboardFixture() {
    QDesktopServices::setUrlHandler("quillmere", this, "openURL");
}

DashboardFixture::~DashboardFixture() {
    QDesktopServices::unsetUrlHandler("quillmere");
}

int DashboardFixture::storedRangeDays() {
    return static_cast<int>(preferences().number(DashboardViewModel::trendRangeKey).value_or(0));
}

void DashboardFixture::record(int minutes, int secondsAgo, const QString& note) {
    session().context().insert(std::make_unique<BalanceAdjustment>(
        platform::Uuid::random(), start - secondsAgo, minutes, note.toStdString(),
        BalanceAdjustmentKind::manual, start, start));
    session().context().save();
}

void DashboardFixture::removeAll() {
    session().context().removeAll<BalanceAdjustment>();
    session().context().save();
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<DashboardFixture>();
}

} // namespace quillmere
