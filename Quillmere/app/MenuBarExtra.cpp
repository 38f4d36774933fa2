#include "Quillmere/app/MenuBarExtra.h"

#include "Quillmere/shell/PreferencesFollower.h"
#include "QuillmereKit/records/AppConstants.h"

namespace quillmere {

MenuBarExtra::MenuBarExtra(const QDBusConnection& bus, const AppStorageController& storage,
                           const PreferencesFollower& preferences, QObject* parent)
    : QObject(parent), preferences_(preferences), label_(storage, preferences), host_(bus) {
    connect(&preferences_, &PreferencesFollower::changed, this, &MenuBarExtra::update);
    connect(&host_, &TrayHost::changed, this, &MenuBarExtra::update);
    connect(&label_, &MenuBarLabelViewModel::mainWindowRequested, this, &MenuBarExtra::appeared);
    update();
}

MenuBarExtra::~MenuBarExtra() = default;

bool MenuBarExtra::isWanted() const {
    return preferences_.domain().boolean(AppConstants::showMenuBarExtraKey).value_or(true);
}

void MenuBarExtra::update() {
    if (isWanted()) {
        label_.appear();
    }
    const bool isShown = isWanted() && host_.isPresent();
    if (isShown && !item_) {
        makeItem();
    } else if (!isShown && item_) {
        item_.reset();
        emit removed();
    }
    emit changed();
}

void MenuBarExtra::makeItem() {
    item_ = std::make_unique<TrayItem>(label_.label());
    TrayItem* item = item_.get();
    connect(&label_, &MenuBarLabelViewModel::changed, item,
            [this, item] { item->setLabel(label_.label()); });
    connect(item, &TrayItem::activated, this, [this, item] { emit activated(item->geometry()); });
    connect(item, &TrayItem::addRequested, this, [this, item] {
        emit composerRequested(TransactionComposerMode::add, item->geometry());
    });
    connect(item, &TrayItem::takeRequested, this, [this, item] {
        emit composerRequested(TransactionComposerMode::take, item->geometry());
    });
    connect(item, &TrayItem::openRequested, this, &MenuBarExtra::mainWindowRequested);
    connect(item, &TrayItem::quitRequested, this, &MenuBarExtra::quitRequested);
}

} // namespace quillmere
