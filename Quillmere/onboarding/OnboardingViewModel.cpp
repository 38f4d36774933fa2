#include "Quillmere/onboarding/OnboardingViewModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/maintenance/StorePreparation.h"

namespace quillmere {

OnboardingViewModel::OnboardingViewModel(StoreSession& session, AppState& appState, QObject* parent)
    : QObject(parent), session_(session), appState_(appState) {
}

void OnboardingViewModel::complete() {
    TimeBankSettings* settings = session_.settingsRecord();
    if (!settings) {
        return;
    }
    platform::store::Context& context = session_.context();
    try {
        StorePreparation::completeOnboarding(context, *settings);
        // Repairs that find nothing to repair save nothing, and the answer above must be kept.
        context.save();
    } catch (const std::exception& error) {
        context.rollback();
        appState_.report(error, tr("Couldn't finish setup"),
                         tr("Your time bank wasn't saved. Please try again."));
    }
}

} // namespace quillmere
