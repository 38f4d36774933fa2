#include "Platform/json/Document.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

using namespace std::string_literals;
using namespace platform::json;

namespace {

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    while (count-- > 0) {
        result += text;
    }
    return result;
}

std::string nestedArrays(std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
}

/// An object of `count` different keys, then `last`.
std::string wideObject(int count, const std::string& last) {
    std::string text = "{";
    for (int index = 0; index < count; ++index) {
        text += "\"key" + std::to_string(index) + "\":1,";
    }
    return text + "\"" + last + "\":1}";
}

constexpr std::size_t twentyMegabytes = 20U << 20;

} // namespace

TEST(JsonParse, RefusesWhatIsNotStrictJson) {
    const std::pair<const char*, std::string> rows[] = {
        {"empty", ""},
        {"white space only", " \n\t "},
        {"byte order mark", "\xEF\xBB\xBF{}"},
        {"trailing value", "{} {}"},
        {"trailing value behind a scalar", "1 2"},
        {"trailing NUL", "{}\0"s},
        {"trailing comma", "[1,]"},
        {"comment", "[1] // one"},
        {"unclosed string", R"(["a])"},
        {"control character in a string", "[\"a\nb\"]"},
        {"NaN", "[NaN]"},
        {"leading zero", "[01]"},
        {"beyond the doubles", "[1e400]"},
        {"long digits that are no number", "[-123456789012345678901234567890-]"},
        {"overlong UTF-8", "[\"\xC0\xAF\"]"},
        {"surrogate in UTF-8", "[\"\xED\xA0\x80\"]"},
        {"invalid UTF-8 in a key", "{\"\xFF\":1}"},
        {"lone high surrogate", R"(["\ud83d"])"},
        {"lone low surrogate", R"(["\uDE00"])"},
        {"surrogates the wrong way round", R"(["\ude00\ud83d"])"},
        {"high surrogate twice", R"(["\ud83d\ud83d\ude00"])"},
        {"high surrogate before a letter", R"(["\ud83d\u0041"])"},
        {"high surrogate, escaped backslash", R"(["\ud83d\\ude00"])"},
        {"lone surrogate in a key", R"({"\ud83d":1})"},
        {"key twice", R"({"a":1,"b":2,"a":3})"},
        {"key twice, once escaped", R"({"a":1,"\u0061":2})"},
        {"key twice deep inside", R"([{"x":[{"":1,"":1}]}])"},
        {"key twice among many", wideObject(1000, "key500")},
        {"too deep", nestedArrays(maximumDepth + 1)},
        {"too deep in objects", repeated(R"({"a":)", 1000) + "1" + repeated("}", 1000)},
        {"20 MB of opening brackets", std::string(twentyMegabytes, '[')},
        {"20 MB of nested arrays", nestedArrays(twentyMegabytes / 2)},
        {"20 MB of digits", std::string(twentyMegabytes, '9')},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_THROW((void)parse(text), JsonError);
    }
}

TEST(JsonParse, AcceptsWhatOnlyLooksWrong) {
    const std::pair<const char*, std::string> rows[] = {
        {"scalar alone", " 1 "},
        {"deepest nesting", nestedArrays(maximumDepth)},
        {"same key in different objects", R"({"a":{"a":1},"b":{"a":1}})"},
        {"keys that differ in case", R"({"a":1,"A":2})"},
        {"many keys", wideObject(1000, "key")},
        {"surrogate pair", R"(["\uD83D\uDE00"])"},
        {"escaped backslash before a lone surrogate's digits", R"(["\\ud83d"])"},
        {"non-character", "[\"\xEF\xBF\xBF\"]"},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_NO_THROW((void)parse(text));
    }
}

TEST(JsonParse, ReadsNumbersAsIntegersAndDoubles) {
    struct Row {
        std::string text;
        std::optional<std::int64_t> integer;
        double number;
    };
    const Row rows[] = {
        {"0", 0, 0.0},
        {"1780000000", 1780000000, 1780000000.0},
        {"1780000000.25", std::nullopt, 1780000000.25},
        {"5.0", std::nullopt, 5.0},
        {"1e3", std::nullopt, 1000.0},
        {"9223372036854775807", std::numeric_limits<std::int64_t>::max(), 0x1p63},
        {"-9223372036854775808", std::numeric_limits<std::int64_t>::min(), -0x1p63},
        {"9223372036854775808", std::nullopt, 0x1p63},
        {"18446744073709551616", std::nullopt, 0x1p64},
        {"-9223372036854775809", std::nullopt, -0x1p63},
        {"100000000000000000000000000000", std::nullopt, 1e29},
        {"1.1234567890123456789012345", std::nullopt, 1.1234567890123456789012345},
        {"1e-12345678901234567890", std::nullopt, 0.0},
    };
    for (const auto& [text, integer, number] : rows) {
        SCOPED_TRACE(text);
        // Digits in strings stay as they are, also when a number beside them is rewritten.
        const Document document = parse("[\"12345678901234567890\\\"1\"," + text + "]");
        auto element = document.root().array()->begin();
        EXPECT_EQ((*element).string(), "12345678901234567890\"1");
        const Value value = *++element;
        EXPECT_EQ(value.integer(), integer);
        EXPECT_EQ(value.number(), number);
        EXPECT_FALSE(value.boolean() || value.string());
    }
}

TEST(JsonParse, GivesAbsenceForOtherKindsAndMissingKeys) {
    const Document document =
        parse(R"({"flag":true,"nothing":null,"text":"a\u0000\u20ac","list":[[],{}],"":0})");
    const Object root = document.root().object().value();

    EXPECT_EQ(root.find("flag")->boolean(), true);
    EXPECT_EQ(root.find("flag")->number(), std::nullopt);
    EXPECT_TRUE(root.find("nothing")->isNull());
    EXPECT_EQ(root.find("text")->string(), "a\0\xE2\x82\xAC"s);
    EXPECT_FALSE(root.find("text")->array() || root.find("text")->integer());
    EXPECT_FALSE(root.find("list")->object());
    EXPECT_EQ(root.find("list")->array()->size(), 2U);
    EXPECT_EQ(root.find("")->integer(), 0);
    EXPECT_FALSE(root.find("Flag"));

    std::string keys;
    for (const Member& member : root) {
        keys += std::string(member.key) + ",";
    }
    EXPECT_EQ(keys, "flag,nothing,text,list,,");
}
