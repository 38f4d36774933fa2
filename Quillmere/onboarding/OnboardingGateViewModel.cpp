#include "Quillmere/onboarding/OnboardingGateViewModel.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/migration/LegacyPrototypeImport.h"

namespace quillmere {

OnboardingGateViewModel::OnboardingGateViewModel(StoreSession& session, AppState& appState,
                                                 platform::Preferences& standard,
                                                 const platform::Preferences& prototype,
                                                 QObject* parent)
    : QObject(parent),
      session_(session),
      appState_(appState),
      standard_(standard),
      prototype_(prototype),
      onboarding_(session, appState) {
    // Queued: what a failing save takes back again is never shown.
    connect(&session_, &StoreSession::settingsChanged, this,
            &OnboardingGateViewModel::updateContent, Qt::QueuedConnection);
    preparation_.setSingleShot(true);
    connect(&preparation_, &QTimer::timeout, this, &OnboardingGateViewModel::runPreparation);
    updateContent();
}

void OnboardingGateViewModel::prepare() {
    preparation_.start();
}

void OnboardingGateViewModel::runPreparation() {
    prepareStore();
    importPrototype();
}

void OnboardingGateViewModel::prepareStore() {
    platform::store::Context& context = session_.context();
    try {
        StorePreparation::prepare(context);
    } catch (const std::exception& error) {
        context.rollback();
        appState_.report(
            error, tr("Couldn't prepare your time bank"),
            tr("Quillmere couldn't prepare its settings. Please try reopening the app."));
    }
}

void OnboardingGateViewModel::importPrototype() {
    platform::store::Context& context = session_.context();
    try {
        LegacyPrototypeImport::run(context, standard_, prototype_);
    } catch (const std::exception& error) {
        context.rollback();
        appState_.report(error, tr("Couldn't import earlier data"),
                         tr("Your original Quillmere data was left untouched. The app will try the "
                            "import again next time."));
    }
}

void OnboardingGateViewModel::updateContent() {
    const TimeBankSettings* settings = session_.settingsRecord();
    const Content content =
        !settings ? Preparing : (settings->hasCompletedOnboarding() ? Screens : FirstRun);
    if (content != content_) {
        content_ = content;
        emit contentChanged();
    }
}

} // namespace quillmere
