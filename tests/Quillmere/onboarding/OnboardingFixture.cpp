#include "tests/Quillmere/onboarding/OnboardingFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

namespace quillmere {

void OnboardingFixture::removeSettings() {
    session().context().removeAll<TimeBankSettings>();
    session().context().save();
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<OnboardingFixture>();
}

} // namespace quillmere
