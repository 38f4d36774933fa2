#include "QuillmereKit/navigation/AppRoute.h"

#include <gtest/gtest.h>

namespace quillmere {

namespace {

TEST(AppRoute, OpensFromItsLinks) {
    using enum AppRoute;
    const struct {
        const char* url;
        std::optional<AppRoute> expected;
    } rows[] = {
        {"quillmere://settings", settings},
        {"QuillMere://REPORTS", reports},
        {"QUILLMERE://History/anything?a=b#c", history},
        {"quillmere://user@overview:80?x", overview},
        {"quillmere:", std::nullopt},
        {"quillmere:overview", std::nullopt},
        {"quillmere:/overview", std::nullopt},
        {"quillmere://", std::nullopt},
        {"quillmere://unknown", std::nullopt},
        {"other://overview", std::nullopt},
        {"overview", std::nullopt},
        {"", std::nullopt},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(AppRoutes::fromURL(row.url), row.expected) << row.url;
    }
    for (const AppRoute route : AppRoutes::all) {
        EXPECT_EQ(AppRoutes::fromURL(url(route)), route);
        EXPECT_EQ(AppRoutes::fromRawValue(rawValue(route)), route);
    }
    EXPECT_EQ(url(reports), "quillmere://reports");
    EXPECT_FALSE(AppRoutes::fromRawValue("Reports"));
}

} // namespace

} // namespace quillmere
