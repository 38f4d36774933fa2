#include "Quillmere/share/DialogAccess.h"

#include "Quillmere/share/DialogNameField.h"

#include <QtGui/QGuiApplication>

#include <algorithm>
#include <functional>

namespace quillmere {

namespace {

constexpr QLatin1String listName("fileDialogListView");
constexpr QLatin1String nameFieldName("fileNameTextField");
constexpr int acceptRole = 0; // DialogButtonBox.AcceptRole

QQuickItem* firstOf(QQuickItem& item, const std::function<bool(const QQuickItem&)>& isWanted) {
    if (isWanted(item)) {
        return &item;
    }
    for (QQuickItem* child : item.childItems()) {
        if (QQuickItem* found = firstOf(*child, isWanted)) {
            return found;
        }
    }
    return nullptr;
}

QQuickItem* partOf(QQuickItem& popup, QLatin1String name) {
    return firstOf(popup, [&](const QQuickItem& item) { return item.objectName() == name; });
}

// The button that opens or saves, by the role that it has in its box.
bool isAcceptButton(const QQuickItem& item) {
    return std::ranges::any_of(item.children(), [](const QObject* child) {
        return child->inherits("QQuickDialogButtonBoxAttached") &&
               child->property("buttonRole").toInt() == acceptRole;
    });
}

QString nameOf(const QQuickItem& item) {
    if (item.objectName() == nameFieldName) {
        return DialogAccess::tr("File name");
    }
    if (item.inherits("QQuickFileDialogDelegate")) {
        return item.property("fileName").toString();
    }
    const bool isUpButton = item.inherits("QQuickToolButton");
    return isUpButton ? DialogAccess::tr("Enclosing folder") : QString();
}

/// Before it could click a button by itself, Qt lost what assistive technology presses.
bool losesPresses(const QQuickItem& item) {
    return item.inherits("QQuickAbstractButton") && item.metaObject()->indexOfMethod("click()") < 0;
}

// The one with a list of files in it.
QQuickItem* fileDialogIn(const QQuickItem& layer) {
    for (QQuickItem* popup : layer.childItems()) {
        if (partOf(*popup, listName)) {
            return popup;
        }
    }
    return nullptr;
}

// Popups lie beside each other in one layer, or, as Qt 6.8 has it, in windows of their own.
QQuickItem* fileDialogOver(const QQuickWindow& window) {
    for (const QQuickItem* layer : window.contentItem()->childItems()) {
        QQuickItem* popup = layer->inherits("QQuickOverlay") ? fileDialogIn(*layer) : nullptr;
        if (popup) {
            return popup;
        }
    }
    for (const QWindow* other : QGuiApplication::topLevelWindows()) {
        const auto* own = qobject_cast<const QQuickWindow*>(other);
        QQuickItem* popup = own && own->transientParent() == &window && own->isVisible()
                                ? fileDialogIn(*own->contentItem())
                                : nullptr;
        if (popup) {
            return popup;
        }
    }
    return nullptr;
}

/// `accessible` is what Qt tells of the item.
void tell(QObject& accessible, const QQuickItem& item) {
    const QString name = nameOf(item);
    if (!name.isEmpty()) {
        accessible.setProperty("name", name);
    }
    if (losesPresses(item)) {
        QObject::connect(&accessible, SIGNAL(pressAction()), &item, SIGNAL(clicked()),
                         Qt::UniqueConnection);
    }
}

void colour(QQuickItem& item, QObject& palette) {
    // Controls within a plain item do not inherit it.
    item.setProperty("palette", QVariant::fromValue(&palette));
    // The path stands on white, whatever the palette.
    if (item.inherits("QQuickFolderBreadcrumbBar")) {
        if (auto* background = item.property("background").value<QQuickItem*>()) {
            background->setProperty("color", palette.property("base"));
        }
    }
}

void tendTo(QQuickItem& item, QObject& palette) {
    colour(item, palette);
    // There is none while no assistive technology is there, and Qt gives rows of the list two.
    for (QObject* child : item.children()) {
        if (child->inherits("QQuickAccessibleAttached")) {
            tell(*child, item);
        }
    }
    for (QQuickItem* child : item.childItems()) {
        tendTo(*child, palette);
    }
}

} // namespace

DialogAccess::DialogAccess(QObject* parent) : QObject(parent) {
}

DialogAccess::~DialogAccess() = default;

void DialogAccess::open(QQuickWindow* window, QObject* palette) {
    popup_ = fileDialogOver(*window);
    if (!popup_) {
        return;
    }
    palette_ = palette;
    tendToAll();
    if (auto* rows = partOf(*popup_, listName)->property("contentItem").value<QQuickItem*>()) {
        connect(rows, &QQuickItem::childrenChanged, this, &DialogAccess::onRowsMade,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
    }
    tendNameField();
}

void DialogAccess::tendToAll() {
    if (popup_ && palette_) {
        tendTo(*popup_, *palette_);
    }
}

void DialogAccess::tendNameField() {
    QQuickItem* field = partOf(*popup_, nameFieldName);
    QObject* dialog = popup_->parent();
    if (!field || !field->isVisible() || !dialog) {
        return;
    }
    if (!nameField_ || !nameField_->isOf(*dialog)) {
        QQuickItem* saveButton = firstOf(*popup_, isAcceptButton);
        nameField_ = std::make_unique<DialogNameField>(*field, *dialog, saveButton);
    }
    nameField_->begin();
}

void DialogAccess::follow() {
    tendToAll();
    if (nameField_) {
        nameField_->follow();
    }
}

void DialogAccess::onRowsMade() {
    tendToAll();
    if (nameField_) {
        nameField_->keepKeyboard();
    }
}

} // namespace quillmere
