#pragma once

#include "Quillmere/menubar/MenuBarLabel.h"

#include <QtCore/QObject>
#include <QtCore/QRect>

#include <memory>

class QAction;
class QMenu;
class QSystemTrayIcon;

namespace quillmere {

/// The item in the desktop's tray: the painted label, the balance in full as its tooltip, and a
/// menu for desktops that show nothing else. Needs a QApplication. Main thread.
class TrayItem : public QObject {
    Q_OBJECT

public:
    explicit TrayItem(const MenuBarLabel& label, QObject* parent = nullptr);
    ~TrayItem() override;

    void setLabel(const MenuBarLabel& label);

    /// Where the item is on the screen; empty where the desktop does not tell.
    [[nodiscard]] QRect geometry() const;

signals:
    void activated();
    void addRequested();
    void takeRequested();
    void openRequested();
    void quitRequested();

private:
    void makeMenu();

    std::unique_ptr<QMenu> menu_;
    QAction* title_;
    std::unique_ptr<QSystemTrayIcon> icon_;
};

} // namespace quillmere
