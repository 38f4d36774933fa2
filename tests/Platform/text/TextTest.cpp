#include "Platform/text/Characters.h"
#include "Platform/text/Collation.h"
#include "Platform/text/LetterCase.h"
#include "Platform/text/Utf8.h"
#include "Platform/text/WhiteSpace.h"

#include <gtest/gtest.h>

#include <string>

namespace platform {
namespace {

using Pieces = std::vector<std::string_view>;

TEST(WhiteSpace, isExactlyTheCharactersOfTheProperty) {
    const auto isListed = [](unsigned code) {
        return (code >= 0x09 && code <= 0x0D) || code == 0x20 || code == 0x85 || code == 0xA0 ||
               code == 0x1680 || (code >= 0x2000 && code <= 0x200A) || code == 0x2028 ||
               code == 0x2029 || code == 0x202F || code == 0x205F || code == 0x3000;
    };
    const auto encoded = [](unsigned code) {
        std::string bytes;
        if (code < 0x80)
            return bytes += static_cast<char>(code);
        if (code < 0x800)
            return bytes +=
                   {static_cast<char>(0xC0 | code >> 6), static_cast<char>(0x80 | (code & 0x3F))};
        return bytes +=
               {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
                static_cast<char>(0x80 | (code & 0x3F))};
    };
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF)
            continue;
        const auto one = encoded(code);
        const auto text = std::string(one).append("a").append(one).append("b").append(one);
        ASSERT_EQ(trimmed(text).size(), one.size() * (isListed(code) ? 1 : 3) + 2) << code;
        ASSERT_EQ(splitAtWhiteSpace(text).size(), isListed(code) ? 2U : 1U) << code;
    }
}

TEST(WhiteSpace, isTrimmedAndSplitAt) {
    EXPECT_EQ(trimmed(" \t\r\n\u2028 a  b\u3000\u0085"), "a  b");
    EXPECT_EQ(trimmed(" \n\u00A0"), "");
    EXPECT_EQ(trimmed("\xE2\x80 \x80\xFF "), "\xE2\x80 \x80\xFF")
        << "bytes that are not UTF-8 stay";
    EXPECT_EQ(splitAtWhiteSpace("  Ärzte\u00A0und\r\n\tTermine "),
              (Pieces{"Ärzte", "und", "Termine"}));
    EXPECT_EQ(splitAtWhiteSpace(" \n "), Pieces{});
    EXPECT_EQ(splitAtWhiteSpace("a"), Pieces{"a"});
}

struct Characters {
    const char* name;
    std::string text;
    std::size_t count;
    std::string firstTwo;
};

TEST(Characters, areWhatAReaderTakesForOne) {
    const Characters rows[] = {
        {"nothing", "", 0, ""},
        {"ASCII", "abc", 3, "ab"},
        {"CR LF", "\r\n\r\n\n", 3, "\r\n\r\n"},
        {"CR alone", "a\rb", 3, "a\r"},
        {"zero bytes", std::string("a\0b", 3), 3, std::string("a\0", 2)},
        {"combining marks", "e\u0301\u0323a\u0308o", 3, "e\u0301\u0323a\u0308"},
        {"mark after ASCII at the cut", "ab\u0301c", 3, "ab\u0301"},
        {"families", "👨‍👩‍👧‍👦👩🏽‍🚀x", 3,
         "👨‍👩‍👧‍👦👩🏽‍🚀"},
        {"flags", "🇩🇪🇸🇪🇯🇵", 3, "🇩🇪🇸🇪"},
        {"keycap and variation", "1️⃣❤️a", 3, "1️⃣❤️"},
        {"Hangul syllables of parts", "\u1100\u1161\u11A8\u1100\u1161a", 3,
         "\u1100\u1161\u11A8\u1100\u1161"},
        {"not UTF-8", "\xFF\xC3\x28z", 4, "\xFF\xC3"},
        {"cut off", "ab\xF0\x9F\x91", 3, "ab"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(characterCount(row.text), row.count);
        EXPECT_EQ(firstCharacters(row.text, 2), row.firstTwo);
        EXPECT_EQ(firstCharacters(row.text, row.count), row.text);
        EXPECT_EQ(firstCharacters(row.text, 0), "");
    }
}

TEST(LetterCase, makesTextsOfOtherCaseOrEncodingEqual) {
    const char* const equal[][2] = {
        {"Dentist 12", "dENTIST 12"},
        {"ÄRZTE", "ärzte"},
        {"ΣΊΣΥΦΟΣ", "σίσυφος"},
        {"\u00C9t\u00E9", "e\u0301te\u0301"},
        {"\u0130stanbul", "i\u0307stanbul"},
        {"ИВАН", "иван"},
    };
    for (const auto& [a, b] : equal)
        EXPECT_EQ(lowercasedForComparison(a), lowercasedForComparison(b)) << a;
    EXPECT_EQ(lowercasedForComparison("Straße Nº"), "straße nº");
    EXPECT_NE(lowercasedForComparison("Strasse"), lowercasedForComparison("Straße"));
    EXPECT_EQ(lowercasedForComparison("A\xFF"), "a\uFFFD");
}

TEST(Collation, tellsWhatAReaderTakesForAnotherText) {
    const struct {
        const char* a;
        const char* b;
        bool equal;
    } rows[] = {
        {"Errands", "eRRANDS", true},
        {"Straße", "STRASSE", false},
        {"\u00C9t\u00E9", "e\u0301TE\u0301", true},
        {"Été", "Ete", false},
        {"שָׁלוֹם", "שָׁלוֹם", true},
        {"שלום", "שלומ", true},
        {"Gym", "Gym 2", false},
        {"School run", "Schoolrun", false},
        {"👨‍👩‍👧", "👨‍👩‍👦", false},
        {"", "", true},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(equalForReaderIgnoringCase(row.a, row.b), row.equal) << row.a << " " << row.b;
    }
}

struct Bytes {
    const char* name;
    const char* bytes;
    const char* repaired;
};

TEST(Utf8, isCheckedAndRepaired) {
    const Bytes rows[] = {
        {"empty", "", ""},
        {"every length", "a\u00E9\u20AC\U0001F600\U0010FFFF", "a\u00E9\u20AC\U0001F600\U0010FFFF"},
        {"beside the surrogates", "\uD7FF\uE000", "\uD7FF\uE000"},
        {"stray continuation", "a\x80z", "a\uFFFDz"},
        {"overlong slash", "\xC0\xAF", "\uFFFD\uFFFD"},
        {"overlong of three", "\xE0\x9F\xBF", "\uFFFD\uFFFD\uFFFD"},
        {"surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        {"above the last", "\xF4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"cut off", "a\xF0\x9F\x98", "a\uFFFD"},
        {"cut off in the middle", "\xE2\x82z", "\uFFFDz"},
        {"no lead byte", "\xF5\xFE", "\uFFFD\uFFFD"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(isUtf8(row.bytes), std::string_view(row.bytes) == row.repaired);
        EXPECT_EQ(repairedUtf8(row.bytes), row.repaired);
        EXPECT_TRUE(isUtf8(row.repaired));
    }
}

} // namespace
} // namespace platform
