#include "QuillmereKit/actions/QuillmereShortcuts.h"

#include <gtest/gtest.h>

namespace quillmere::test {

namespace {

TEST(QuillmereShortcuts, AreFoundByWhatIsTyped) {
    const struct {
        const char* name;
        std::vector<std::string> terms;
        std::string found;
    } rows[] = {
        {"nothing", {}, ""},
        {"white space", {" ", "\t"}, ""},
        {"a beginning", {"a"}, "30 "},
        {"another case", {"SUBTR"}, "-30 "},
        {"what both have", {"30", "min"}, "30 -30 "},
        {"one term of several words", {"  use flex  ti"}, "-30 "},
        {"words in another order", {"time", "flex"}, "30 -30 "},
        {"the application", {"quill"}, "30 -30 "},
        {"not the token", {"$"}, ""},
        {"words of two phrases", {"30", "flex"}, ""},
        {"one word too many", {"add", "60"}, ""},
        {"the middle of a word", {"inutes"}, ""},
    };
    for (const auto& row : rows) {
        std::string found;
        for (const auto* shortcut : QuillmereShortcuts::matching(row.terms, "Quillmere")) {
            found += std::to_string(shortcut->minutes) + ' ';
        }
        EXPECT_EQ(found, row.found) << row.name;
    }
    const auto* subtract = QuillmereShortcuts::find("subtract-30-minutes");
    ASSERT_EQ(subtract, &QuillmereShortcuts::all()[1]);
    EXPECT_EQ(QuillmereShortcuts::phraseText(subtract->phrases[1], "Bank"),
              "Use flex time with Bank");
}

} // namespace

} // namespace quillmere::test
