#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QUrl>
#include <QtQuick/QQuickItem>

namespace quillmere {

/// The name field of Qt's own save dialog: the dialog saves what the field says. By itself Qt drops
/// the name when another folder is shown, takes what was typed for a part of a URL, and does
/// nothing on Enter. Main thread.
class DialogNameField : public QObject {
    Q_OBJECT

public:
    /// Tends the field of a dialog, which Qt makes once and shows many times. `saveButton` may be
    /// null.
    DialogNameField(QQuickItem& field, QObject& dialog, QQuickItem* saveButton);

    [[nodiscard]] bool isOf(const QObject& dialog) const { return dialog_ == &dialog; }

    /// The dialog has opened: gives the field the keyboard, and selects the name without its
    /// suffix.
    void begin();
    /// The dialog's list has rows. Qt then gives the keyboard to the row of the suggested file; the
    /// field takes it back unless the user has moved on.
    void keepKeyboard();
    /// The dialog shows another folder: offers the name there.
    void follow();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void onEdited();
    void onSelected();
    void save();

private:
    void takeKeyboard();
    [[nodiscard]] QString name() const;
    void setName(const QString& name);
    [[nodiscard]] QUrl folder() const;
    [[nodiscard]] QUrl selectedFile() const;

    QPointer<QQuickItem> field_;
    QPointer<QObject> dialog_;
    QPointer<QQuickItem> saveButton_;
    QUrl folder_;
    bool isFresh_ = false;
    bool isSelecting_ = false;
};

} // namespace quillmere
