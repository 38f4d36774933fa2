#include "Platform/files/ExportFile.h"

#include "Platform/files/Files.h"
#include "tests/Platform/files/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace platform;

namespace {

namespace fs = std::filesystem;

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
}

} // namespace

TEST(ExportFile, LeavesOneExportReadableByItsOwnerAlone) {
    using Names = std::vector<std::string>;
    const std::pair<ExportClearing, Names> rows[] = {
        {ExportClearing::visible, {".hidden", "new"}},
        {ExportClearing::all, {"new"}},
    };
    for (const auto& [clearing, left] : rows) {
        SCOPED_TRACE(left.size());
        const TestFolder temporary;
        const fs::path folder = temporary.path() / "a" / "Exports";
        writeExportFile(folder, "old", "old", clearing);
        writeExportFile(folder / "subfolder", ".hidden", "", clearing);
        writeFileAtomically(folder / ".hidden", "", privateFileMode);
        fs::permissions(folder, fs::perms(0755));
        EXPECT_EQ(writeExportFile(folder, "new", "bytes", clearing), folder / "new");
        EXPECT_EQ(namesIn(folder), left);
        EXPECT_EQ(readFile(folder / "new", TestFolder::enough), "bytes");
        EXPECT_EQ(TestFolder::modeOf(folder), 0700U);
        EXPECT_EQ(TestFolder::modeOf(folder.parent_path()), 0700U);
        EXPECT_EQ(TestFolder::modeOf(folder / "new"), 0600U);
    }
}

TEST(ExportFile, IsNotLedAwayByALinkThatWaitsUnderTheNameOfItsFolder) {
    const TestFolder temporary;
    fs::create_directory(temporary.path() / "elsewhere");
    writeFileAtomically(temporary.path() / "elsewhere" / "kept", "", privateFileMode);
    fs::create_directory_symlink("elsewhere", temporary.path() / "Exports");
    EXPECT_THROW(
        writeExportFile(temporary.path() / "Exports", "file", "bytes", ExportClearing::all),
        FileError);
    EXPECT_EQ(namesIn(temporary.path() / "elsewhere"), std::vector<std::string>{"kept"});
}

TEST(ExportFile, IsSavedWhereALinkLeadsAndKeepsTheModeOfWhatItReplaces) {
    const TestFolder folder;
    writeFileAtomically(folder.path() / "shared", "a longer old text", 0644);
    fs::create_symlink("shared", folder.path() / "link");
    saveForUser(folder.path() / "link", "new");
    EXPECT_EQ(readFile(folder.path() / "shared", TestFolder::enough), "new");
    EXPECT_EQ(TestFolder::modeOf(folder.path() / "shared"), 0644U);
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    saveForUser(folder.path() / "private", "new");
    EXPECT_EQ(TestFolder::modeOf(folder.path() / "private"), 0600U);
}
