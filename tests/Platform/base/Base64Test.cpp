#include "Platform/base/Base64.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;
namespace base64 = platform::base64;

TEST(Base64, EncodesAndDecodesKnownTexts) {
    // RFC 4648, section 10, and one text with both of the alphabet's last characters.
    constexpr std::pair<std::string_view, std::string_view> rows[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {"\xFB\xEF\xFF\0"sv, "++//AA=="},
    };
    for (const auto& [bytes, text] : rows) {
        SCOPED_TRACE(text);
        EXPECT_EQ(base64::encode(bytes), text);
        EXPECT_EQ(base64::decode(text), bytes);
    }
}

TEST(Base64, RefusesWhatIsNotStrictBase64) {
    constexpr std::pair<const char*, std::string_view> rows[] = {
        {"padding missing", "Zg"},
        {"padding too short", "Zg="},
        {"padding too long", "Z==="},
        {"nothing but padding", "===="},
        {"padding beyond a whole group", "Zm9v===="},
        {"padding in the middle", "Zg==Zg=="},
        {"single padding in the middle", "Zm=vZm9v"},
        {"line break", "Zm9v\n"},
        {"line break that keeps the length", "Zm9vZm9\n"},
        {"space", "Zm 9"},
        {"URL alphabet", "--__"},
        {"NUL", "Zm9\0"sv},
        {"not ASCII", "Zm9\xC3"},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(base64::decode(text), std::nullopt);
    }
}

TEST(Base64, IgnoresUnusedBitsBeforeThePadding) {
    EXPECT_EQ(base64::decode("Zh=="), "f");
    EXPECT_EQ(base64::decode("Zm9="), "fo");
}
