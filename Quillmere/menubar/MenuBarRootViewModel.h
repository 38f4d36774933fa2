#pragma once

#include "Quillmere/menubar/MenuBarViewModel.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The content of the tray panel on an open store: what is left to do before there is a time bank,
/// or the time bank. Made when the panel is opened, gone when it closes. Main thread.
class MenuBarRootViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    /// The user has completed the first run. It follows the settings record.
    Q_PROPERTY(bool isSetUp READ isSetUp NOTIFY isSetUpChanged)
    Q_PROPERTY(quillmere::MenuBarViewModel* timeBank READ timeBank CONSTANT)

public:
    /// Both must outlive the object.
    MenuBarRootViewModel(StoreSession& session, AppState& appState, QObject* parent = nullptr);

    [[nodiscard]] bool isSetUp() const { return isSetUp_; }
    [[nodiscard]] MenuBarViewModel* timeBank() { return &timeBank_; }

    /// Called when the content appears: repairs the store, from the event loop. A failure is
    /// reported as an issue.
    Q_INVOKABLE void prepare();

signals:
    void isSetUpChanged();

private:
    void runPreparation();
    void updateIsSetUp();

    StoreSession& session_;
    AppState& appState_;
    MenuBarViewModel timeBank_;
    QTimer preparation_;
    bool isSetUp_ = false;
};

} // namespace quillmere
