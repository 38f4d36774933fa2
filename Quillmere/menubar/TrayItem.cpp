#include "Quillmere/menubar/TrayItem.h"

#include "Quillmere/menubar/MenuBarLabelView.h"
#include "Quillmere/menubar/UnavailableMenuBarLabelView.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSystemTrayIcon>

namespace quillmere {

namespace {

QIcon iconOf(const MenuBarLabel& label) {
    if (label.isAvailable) {
        return QIcon(new MenuBarLabelView(label));
    }
    return QIcon(new UnavailableMenuBarLabelView);
}

} // namespace

TrayItem::TrayItem(const MenuBarLabel& label, QObject* parent)
    : QObject(parent),
      menu_(std::make_unique<QMenu>()),
      title_(menu_->addAction(QString())),
      icon_(std::make_unique<QSystemTrayIcon>()) {
    makeMenu();
    setLabel(label);
    icon_->setContextMenu(menu_.get());
    connect(icon_.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger) {
                    emit activated();
                }
            });
    icon_->show();
}

TrayItem::~TrayItem() = default;

void TrayItem::setLabel(const MenuBarLabel& label) {
    icon_->setIcon(iconOf(label));
    icon_->setToolTip(label.toolTip());
    title_->setText(label.menuTitle());
}

QRect TrayItem::geometry() const {
    return icon_->geometry();
}

void TrayItem::makeMenu() {
    title_->setEnabled(false);
    menu_->addSeparator();
    menu_->addAction(tr("Add time"), this, &TrayItem::addRequested);
    menu_->addAction(tr("Take flex time"), this, &TrayItem::takeRequested);
    menu_->addSeparator();
    menu_->addAction(tr("Open app"), this, &TrayItem::openRequested);
    menu_->addAction(tr("Quit"), this, &TrayItem::quitRequested);
}

} // namespace quillmere
