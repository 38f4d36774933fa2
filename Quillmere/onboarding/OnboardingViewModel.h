#pragma once

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class AppState;
class StoreSession;

/// The first-run screen: confirming it makes the store a manual time bank. Main thread.
class OnboardingViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

public:
    /// Both must outlive the object.
    OnboardingViewModel(StoreSession& session, AppState& appState, QObject* parent = nullptr);

    /// The primary action: marks the settings record as set up from today on, without planned
    /// working time, and repairs the store. When any of it fails, what is unsaved is undone and an
    /// issue says so. Does nothing while there is no settings record.
    Q_INVOKABLE void complete();

private:
    StoreSession& session_;
    AppState& appState_;
};

} // namespace quillmere
