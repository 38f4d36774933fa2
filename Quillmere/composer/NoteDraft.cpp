#include "Quillmere/composer/NoteDraft.h"

#include "Platform/text/Characters.h"
#include "Quillmere/composer/LimitedEdit.h"
#include "QuillmereKit/records/NoteValidation.h"

#include <utility>

namespace quillmere {

NoteDraft::NoteDraft(QString text, QObject* parent) : QObject(parent), text_(std::move(text)) {
}

QString NoteDraft::counter() const {
    return tr("%1/%2 characters")
        .arg(platform::characterCount(text_.toStdString()))
        .arg(NoteValidation::maximumCharacterCount);
}

int NoteDraft::edit(const QString& text, int cursor) {
    const EditedText edited =
        limitedEdit(text_, {text, cursor}, NoteValidation::maximumCharacterCount);
    if (text_ != edited.text) {
        text_ = edited.text;
        emit changed();
    }
    return static_cast<int>(edited.cursor);
}

} // namespace quillmere
