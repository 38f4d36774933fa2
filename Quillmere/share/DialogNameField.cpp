#include "Quillmere/share/DialogNameField.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlProperty>

#include <utility>

namespace quillmere {

namespace {

// The Enter that opened the dialog may still be down.
bool isHeldEnter(const QKeyEvent& press) {
    const bool isEnter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
    return isEnter && press.isAutoRepeat();
}

} // namespace

DialogNameField::DialogNameField(QQuickItem& field, QObject& dialog, QQuickItem* saveButton)
    : field_(&field), dialog_(&dialog), saveButton_(saveButton) {
    field.installEventFilter(this);
    connect(&field, SIGNAL(textChanged()), this, SLOT(onEdited()));
    connect(&field, SIGNAL(accepted()), this, SLOT(save()));
    connect(&dialog, SIGNAL(selectedFileChanged(QUrl)), this, SLOT(onSelected()));
}

void DialogNameField::begin() {
    folder_ = folder();
    setName(selectedFile().fileName());
    isFresh_ = true;
    takeKeyboard();
}

void DialogNameField::keepKeyboard() {
    if (dialog_ && std::exchange(isFresh_, false) && !field_->hasActiveFocus()) {
        takeKeyboard();
    }
}

void DialogNameField::takeKeyboard() {
    field_->forceActiveFocus(Qt::TabFocusReason);
    const int length = static_cast<int>(QFileInfo(name()).completeBaseName().size());
    QMetaObject::invokeMethod(field_, "select", Q_ARG(int, 0), Q_ARG(int, length));
}

void DialogNameField::follow() {
    if (dialog_) {
        folder_ = folder();
        onEdited();
    }
}

bool DialogNameField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        isFresh_ &= static_cast<QFocusEvent*>(event)->reason() == Qt::OtherFocusReason;
    }
    return (event->type() == QEvent::KeyPress && isHeldEnter(*static_cast<QKeyEvent*>(event))) ||
           QObject::eventFilter(watched, event);
}

void DialogNameField::onEdited() {
    const QDir shown(folder().toLocalFile());
    const QString path = QDir::cleanPath(shown.filePath(name()));
    const QScopedValueRollback selecting(isSelecting_, true);
    dialog_->setProperty("selectedFile", name().isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
}

// By the user, or by Qt: when another folder is shown, and as a path without a scheme when the
// field is left.
void DialogNameField::onSelected() {
    const QUrl file = selectedFile();
    if (isSelecting_ || folder() != folder_) {
        return;
    }
    if (!file.isLocalFile()) {
        onEdited();
    } else if (!QFileInfo(file.toLocalFile()).isDir()) {
        setName(file.fileName());
    }
}

void DialogNameField::save() {
    if (saveButton_ && saveButton_->isEnabled()) {
        QMetaObject::invokeMethod(saveButton_, "clicked");
    }
}

QString DialogNameField::name() const {
    return field_->property("text").toString();
}

void DialogNameField::setName(const QString& name) {
    QQmlProperty::write(field_, QStringLiteral("text"), name); // ends Qt's own binding
}

QUrl DialogNameField::folder() const {
    return dialog_->property("currentFolder").toUrl();
}

QUrl DialogNameField::selectedFile() const {
    return dialog_->property("selectedFile").toUrl();
}

} // namespace quillmere
