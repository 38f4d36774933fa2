#include "Platform/json/Writer.h"

#include "Platform/json/Document.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

using namespace std::string_view_literals;
using namespace platform::json;

namespace {

std::string numberText(double value) {
    std::string text;
    Writer(text).number(value);
    return text;
}

void writeSample(Writer& writer) {
    writer.beginObject().key("list").beginArray().integer(-1).boolean(true).null();
    writer.beginObject().endObject().beginArray().endArray().endArray();
    writer.key("a/b").string("c/d").endObject();
}

} // namespace

TEST(JsonWriter, WritesNumbersPlainAndShortest) {
    constexpr std::pair<double, const char*> rows[] = {
        {1780000000.0, "1780000000"},
        {1780000000.1, "1780000000.1"},
        {-0.5, "-0.5"},
        {0.0, "0"},
        {-0.0, "-0.0"},
        {1e-7, "0.0000001"},
        {0x1p62, "4611686018427387904"},
        {0x1p63, "9223372036854775808.0"},
        {-1e20, "-100000000000000000000.0"},
    };
    for (const auto& [value, text] : rows) {
        EXPECT_EQ(numberText(value), text);
    }
}

TEST(JsonWriter, EveryFiniteDoubleReadsBackBitForBit) {
    std::vector<double> values = {std::numeric_limits<double>::max(),
                                  -std::numeric_limits<double>::denorm_min(),
                                  -std::numeric_limits<double>::min(), -0.0, 0x1p53 + 2};
    std::mt19937_64 bits(20240229);
    while (values.size() < 20000) {
        const auto value = std::bit_cast<double>(bits());
        if (std::isfinite(value)) {
            values.push_back(value);
        }
    }
    for (const double value : values) {
        const std::string text = numberText(value);
        SCOPED_TRACE(text);
        const double back = parse(text).root().number().value();
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(value));
    }
}

TEST(JsonWriter, RefusesWhatJsonCannotHold) {
    std::string text;
    Writer writer(text);
    EXPECT_THROW(writer.number(std::numeric_limits<double>::infinity()), JsonError);
    EXPECT_THROW(writer.number(-std::numeric_limits<double>::quiet_NaN()), JsonError);
    EXPECT_THROW(writer.string("\xE2\x82"), JsonError);
    EXPECT_THROW(writer.string("\xED\xA0\x80"), JsonError);
}

TEST(JsonWriter, LaysOutCompactAndPretty) {
    std::string compact;
    Writer compactWriter(compact, Writer::Layout::compact, Writer::Slash::escaped);
    writeSample(compactWriter);
    EXPECT_EQ(compact, R"({"list":[-1,true,null,{},[]],"a\/b":"c\/d"})");

    std::string pretty;
    Writer prettyWriter(pretty, Writer::Layout::pretty);
    writeSample(prettyWriter);
    EXPECT_EQ(pretty, R"({
  "list": [
    -1,
    true,
    null,
    {},
    []
  ],
  "a/b": "c/d"
})");
}

TEST(JsonWriter, EscapesOnlyWhatItMustAndCopiesParsedValues) {
    std::string text;
    Writer(text).string("\"\\\b\f\n\r\t\x01\x1F\x7F\0 \xC3\xA9 \xF0\x9F\x98\x80"sv);
    EXPECT_EQ(text, "\"\\\"\\\\\\b\\f\\n\\r\\t\\u0001\\u001f\x7F\\u0000 \xC3\xA9 "
                    "\xF0\x9F\x98\x80\"");

    const std::string_view source =
        R"({"a":[1,-2.5,true,false,null,{"b":"\u0000é\"/"}],"c":{},"d":100000000000000000000.0})";
    std::string copy;
    Writer(copy).value(parse(source).root());
    EXPECT_EQ(copy, source);
}
