#include "tests/Quillmere/onboarding/OnboardingFixture.h"

#include "tests/Quillmere/support/QmlFixture.h"

#include <QtCore/QCoreApplication>

namespace quillmere {

void OnboardingFixture::removeSettings() {
    session().context().removeAll<TimeBankSettings>();
    session().context().save();
    QCoreApplication::sendPostedEvents(&model_); // the gate answers before the next preparation
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<OnboardingFixture>();
}

} // namespace quillmere
