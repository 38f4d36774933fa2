#include "Quillmere/composer/LimitedEdit.h"

#include <gtest/gtest.h>

namespace quillmere {

// A limit of 5; "|" is the cursor.
TEST(LimitedEdit, cutsWhatTheEditPutIn) {
    struct Row {
        const char* name;
        QString before;
        QString after;
        QString kept;
    };
    const QString family = QStringLiteral("👨‍👩‍👧");
    for (const Row& row : {
             Row{"room left", "abc", "abcd|", "abcd|"},
             Row{"typed at the end", "abcde", "abcdex|", "abcde|"},
             Row{"typed in the middle", "abcde", "abx|cde", "ab|cde"},
             Row{"typed what stands there", "aaaaa", "aaa|aaa", "aa|aaa"},
             Row{"pasted with some room", "abc", "aXYZ|bc", "aXY|bc"},
             Row{"pasted over a selection", "abcde", "aXYZW|e", "aXYZ|e"},
             Row{"pasted into nothing", "", "abcdefgh|", "abcde|"},
             Row{"a family counts as one", "abcd", "abcd" + family + "|", "abcd" + family + "|"},
             Row{"and is cut as one", "abcde", "ab" + family + "|cde", "ab|cde"},
             Row{"emoji that begin alike", "abc😀e", "abc😃XY|e", "abc😃|e"},
             Row{"an accent on the last letter", "abcde", QStringLiteral("abcde\u0301|"),
                 QStringLiteral("abcde\u0301|")},
             Row{"set by a program", "xyz", "|abcdefgh", "|abcde"},
         }) {
        SCOPED_TRACE(row.name);
        const qsizetype cursor = row.after.indexOf('|');
        const EditedText edited =
            limitedEdit(row.before, {QString(row.after).remove('|'), cursor}, 5);
        EXPECT_EQ(QString(edited.text).insert(edited.cursor, '|').toStdString(),
                  row.kept.toStdString());
    }
}

} // namespace quillmere
