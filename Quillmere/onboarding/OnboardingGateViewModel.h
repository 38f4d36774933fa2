#pragma once

#include "Quillmere/onboarding/OnboardingViewModel.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

namespace platform {
class Preferences;
}

namespace quillmere {

class AppState;
class StoreSession;

/// Decides what the main window shows: progress while the store is being prepared, the first-run
/// screen, or the screens themselves. It holds no state of its own; everything follows from the
/// settings record, from the event loop: not from what is undone before it runs again. Main thread.
class OnboardingGateViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(Content content READ content NOTIFY contentChanged)
    Q_PROPERTY(quillmere::OnboardingViewModel* onboarding READ onboarding CONSTANT)

public:
    enum Content {
        Preparing, ///< there is no settings record
        FirstRun,  ///< the user has not confirmed the first-run screen
        Screens,
    };
    Q_ENUM(Content)

    /// `standard` keeps the flag of the one-time import, `prototype` is the earlier prototype's
    /// domain. All must outlive the object.
    OnboardingGateViewModel(StoreSession& session, AppState& appState,
                            platform::Preferences& standard, const platform::Preferences& prototype,
                            QObject* parent = nullptr);

    [[nodiscard]] Content content() const { return content_; }
    [[nodiscard]] OnboardingViewModel* onboarding() { return &onboarding_; }

    /// Called each time the progress view appears: prepares the store and imports the prototype's
    /// data, from the event loop. Failures are reported as issues and change nothing shown.
    Q_INVOKABLE void prepare();

signals:
    void contentChanged();

private:
    void runPreparation();
    void prepareStore();
    void importPrototype();
    void updateContent();

    StoreSession& session_;
    AppState& appState_;
    platform::Preferences& standard_;
    const platform::Preferences& prototype_;
    OnboardingViewModel onboarding_;
    Content content_ = Preparing;
    QTimer preparation_;
};

} // namespace quillmere
