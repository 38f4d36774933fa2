#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A note being typed. Holds as much as a note may, 280 characters as a reader counts them,
/// however it is edited; only one that was longer from the start stays so until then.
class NoteDraft : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of a form's view model")
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// How much of the room is taken.
    Q_PROPERTY(QString counter READ counter NOTIFY changed)

public:
    explicit NoteDraft(QString text = {}, QObject* parent = nullptr);

    [[nodiscard]] const QString& text() const { return text_; }
    [[nodiscard]] QString counter() const;

    /// Takes the field's text after an edit, which may be longer than a note: what the edit put in
    /// is cut, and what was there stays. Answers where the cursor belongs afterwards, in UTF-16
    /// units.
    Q_INVOKABLE int edit(const QString& text, int cursor);

signals:
    void changed();

private:
    QString text_;
};

} // namespace quillmere
