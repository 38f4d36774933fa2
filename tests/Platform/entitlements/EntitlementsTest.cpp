#include "Platform/entitlements/Entitlements.h"

#include "Platform/files/Files.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>

using namespace platform;
using Texts = std::vector<std::string>;

TEST(Entitlements, AreReadAnewWithWrongTypesAsAbsent) {
    struct Row {
        const char* name;
        std::string_view file;
        std::optional<std::string> text;
        Texts texts;
    };
    const Row rows[] = {
        {"right", R"({"text":"T","texts":["a","b"]})", "T", {"a", "b"}},
        {"one text instead of a list", R"({"texts":"a"})", std::nullopt, {}},
        {"a number in the list", R"({"text":"T","texts":["a",1]})", "T", {}},
        {"a list instead of a text", R"({"text":["T"],"texts":[]})", std::nullopt, {}},
        {"null", R"({"text":null,"texts":null})", std::nullopt, {}},
        {"not an object", R"(["text"])", std::nullopt, {}},
        {"not JSON", R"({"text":"T")", std::nullopt, {}},
        {"empty", "", std::nullopt, {}},
    };
    const TestFolder folder;
    const auto file = folder.path() / "entitlements.json";
    const FileEntitlements entitlements(file);
    EXPECT_EQ(entitlements.string("text"), std::nullopt);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        writeFileAtomically(file, row.file, privateFileMode);
        EXPECT_EQ(entitlements.string("text"), row.text);
        EXPECT_EQ(entitlements.strings("texts"), row.texts);
    }
}

TEST(Entitlements, OfTheRunningProgramAreTheBuilds) {
    const FileEntitlements entitlements(FileEntitlements::ofRunningProgram());
    const std::string team = QUILLMERE_TEAM;
    const auto listOf = [&](const char* text) { return team.empty() ? Texts() : Texts{text}; };
    EXPECT_EQ(entitlements.string("com.apple.developer.team-identifier").value_or(""), team);
    EXPECT_EQ(entitlements.strings("com.apple.security.application-groups"),
              listOf("group.dev.vantor.quillmere"));
    EXPECT_EQ(entitlements.strings("com.apple.developer.icloud-container-identifiers"),
              listOf("iCloud.dev.vantor.quillmere"));
    EXPECT_EQ(entitlements.strings("com.apple.developer.icloud-services"), listOf("CloudKit"));
}
