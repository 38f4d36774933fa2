#pragma once

#include "Quillmere/onboarding/OnboardingGateViewModel.h"
#include "Quillmere/settings/SettingsViewModel.h"
#include "Quillmere/shell/MacRootViewModel.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace platform {
class Preferences;
}

namespace quillmere {

class AppState;
class StoreSession;

/// The main window's content on an open store: the gate and, behind it, the frame with its screens.
/// Made for one store session and given up with it.
class MainSceneModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::OnboardingGateViewModel* gate READ gate CONSTANT)
    Q_PROPERTY(quillmere::MacRootViewModel* root READ root CONSTANT)

public:
    /// What outlives every session.
    struct Application {
        AppState& appState;
        RouteSelection& routes;
        platform::Preferences& preferences;
        const platform::Preferences& prototype; ///< the earlier prototype's domain
        SettingsViewModel::Services settings;
    };

    /// Everything given must outlive the object.
    MainSceneModel(StoreSession& session, const Application& application,
                   QObject* parent = nullptr);

    [[nodiscard]] OnboardingGateViewModel* gate() { return &gate_; }
    [[nodiscard]] MacRootViewModel* root() { return &root_; }

private:
    OnboardingGateViewModel gate_;
    MacRootViewModel root_;
};

} // namespace quillmere
