#pragma once

#include "Quillmere/composer/TransactionComposerMode.h"
#include "Quillmere/menubar/MenuBarLabelViewModel.h"
#include "Quillmere/menubar/TrayHost.h"
#include "Quillmere/menubar/TrayItem.h"

#include <QtCore/QObject>

#include <memory>

namespace quillmere {

class AppStorageController;
class PreferencesFollower;

/// The item in the tray, there while the user wants it ("showMenuBarExtra") and the desktop has a
/// tray. The preference stays as it is where there is none. Main thread.
class MenuBarExtra : public QObject {
    Q_OBJECT

public:
    /// Everything given must outlive the object.
    MenuBarExtra(const QDBusConnection& bus, const AppStorageController& storage,
                 const PreferencesFollower& preferences, QObject* parent = nullptr);
    ~MenuBarExtra() override;

    /// The user wants the item and the desktop does not show it.
    [[nodiscard]] bool isMissing() const { return isWanted() && !item_; }

signals:
    /// `isMissing` may be another.
    void changed();
    /// The item has gone.
    void removed();
    /// The item was activated, or its menu asked for a form. `itemGeometry` is where it is on the
    /// screen, empty where the desktop does not tell.
    void activated(const QRect& itemGeometry);
    void composerRequested(TransactionComposerMode mode, const QRect& itemGeometry);
    /// The item has been wanted for the first time, a moment ago; the start ends with this.
    void appeared();
    void mainWindowRequested();
    void quitRequested();

private:
    [[nodiscard]] bool isWanted() const;
    void update();
    void makeItem();

    const PreferencesFollower& preferences_;
    MenuBarLabelViewModel label_;
    TrayHost host_;
    std::unique_ptr<TrayItem> item_;
};

} // namespace quillmere
