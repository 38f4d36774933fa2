#pragma once

#include "Quillmere/menubar/MenuBarLabel.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <memory>

namespace quillmere {

class AppStorageController;
class LedgerBalance;
class PreferencesFollower;

/// The label of the tray item, with a store or without one. It follows the balance, the opened
/// store and the preference "menuBarDisplayMode". One per process. Main thread.
class MenuBarLabelViewModel : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    MenuBarLabelViewModel(const AppStorageController& storage,
                          const PreferencesFollower& preferences, QObject* parent = nullptr);
    ~MenuBarLabelViewModel() override;

    [[nodiscard]] const MenuBarLabel& label() const { return label_; }

    /// Called when the label is there to be seen. The first time, and only then, it asks for the
    /// main window 250 ms later, so that a start always ends with it, or with what is wrong with
    /// the storage, in front.
    void appear();

signals:
    void changed();
    void mainWindowRequested();

private:
    void onSessionChanged();
    void update();
    [[nodiscard]] MenuBarLabel current() const;

    const AppStorageController& storage_;
    const PreferencesFollower& preferences_;
    std::unique_ptr<LedgerBalance> balance_; ///< null while no store is open
    MenuBarLabel label_;
    QTimer opening_;
    bool hasAppeared_ = false;
};

} // namespace quillmere
