#include "Platform/base/Uuid.h"

#include <gtest/gtest.h>

#include <unordered_set>

using platform::Uuid;

namespace {

constexpr std::string_view canonical = "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0";

} // namespace

TEST(Uuid, ReadsEitherCaseAndWritesUpperCase) {
    const auto upper = Uuid::parse(canonical);
    ASSERT_TRUE(upper);
    EXPECT_EQ(upper->bytes()[0], 0x0F);
    EXPECT_EQ(upper->bytes()[15], 0xF0);
    EXPECT_EQ(upper->text(), canonical);
    EXPECT_EQ(Uuid::parse("0f1e2d3c-4b5a-6978-8796-a5b4c3d2e1f0"), upper);
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, RefusesOtherForms) {
    constexpr std::pair<const char*, std::string_view> rows[] = {
        {"empty", ""},
        {"without hyphens", "0F1E2D3C4B5A69788796A5B4C3D2E1F0"},
        {"in braces", "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}"},
        {"one digit short", "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F"},
        {"one digit long", "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F00"},
        {"hyphen misplaced", "0F1E2D3C4-B5A-6978-8796-A5B4C3D2E1F0"},
        {"hyphen replaced", "0F1E2D3C-4B5A-6978-8796_A5B4C3D2E1F0"},
        {"not a hexadecimal digit", "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1FG"},
        {"sign inside", "0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1+0"},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(Uuid::parse(text), std::nullopt);
    }
}

TEST(Uuid, RandomOnesAreVersionFourAndDiffer) {
    std::unordered_set<Uuid> seen;
    Uuid::Bytes everSet{};
    for (int round = 0; round < 1000; ++round) {
        const Uuid uuid = Uuid::random();
        EXPECT_EQ(uuid.text()[14], '4');
        EXPECT_NE(std::string("89AB").find(uuid.text()[19]), std::string::npos);
        EXPECT_TRUE(seen.insert(uuid).second);
        for (std::size_t index = 0; index < everSet.size(); ++index) {
            everSet[index] |= uuid.bytes()[index];
        }
    }
    const auto allBits = Uuid::parse("FFFFFFFF-FFFF-4FFF-BFFF-FFFFFFFFFFFF");
    EXPECT_EQ(Uuid(everSet), allBits);
}
