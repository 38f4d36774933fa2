#pragma once

#include <QtCore/QString>

#include <cstddef>

namespace quillmere {

/// A text after an edit, and the cursor in it, in UTF-16 units.
struct EditedText {
    QString text;
    qsizetype cursor = 0;

    friend bool operator==(const EditedText&, const EditedText&) = default;
};

/// Keeps a text within `limit` characters as a reader counts them, whatever way it is edited: from
/// the text before the edit, and the text and cursor after it. Where the edit makes the text too
/// long, as much of what it put in is kept as fits, and what was there stays.
[[nodiscard]] EditedText limitedEdit(const QString& before, const EditedText& after,
                                     std::size_t limit);

} // namespace quillmere
