#include "tests/Quillmere/menubar/MenuBarFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

namespace quillmere {

void MenuBarFixture::completeSetup() {
    session().settingsRecord()->setHasCompletedOnboarding(true);
    session().context().save();
}

void MenuBarFixture::removeAll() {
    session().context().removeAll<BalanceAdjustment>();
    session().context().removeAll<TimeBankSettings>();
    session().context().save();
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<MenuBarFixture>();
}

} // namespace quillmere
