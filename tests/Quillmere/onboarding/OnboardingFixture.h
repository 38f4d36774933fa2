#pragma once

#include "Quillmere/onboarding/OnboardingGateViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

namespace quillmere {

/// The gate in front of an empty store.
class OnboardingFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::OnboardingGateViewModel* model READ model CONSTANT)

public:
    [[nodiscard]] OnboardingGateViewModel* model() { return &model_; }

    /// What erasing all data leaves.
    Q_INVOKABLE void removeSettings();

private:
    platform::MemoryPreferences prototype_;
    OnboardingGateViewModel model_{session(), appState(), preferences(), prototype_};
};

} // namespace quillmere
