#include "Quillmere/share/FileShare.h"

#include "Platform/files/ExportFile.h"
#include "Platform/files/Files.h"
#include "Platform/log/MemoryLogSink.h"
#include "Quillmere/shell/AppState.h"
#include "tests/Platform/files/TestFolder.h"

#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <optional>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

QUrl urlOf(const fs::path& file) {
    return QUrl::fromLocalFile(QString::fromStdString(file));
}

class FileShareTest : public testing::Test {
protected:
    void reach(FileShare::Step step) {
        ASSERT_TRUE(QTest::qWaitFor([&] { return share_.step() == step; }, 30'000)) << step;
    }

    /// Chooses a place for the export, and the answer when a file is there.
    void saveTo(const fs::path& target, bool replaces = true) {
        share_.save();
        reach(FileShare::Choosing);
        share_.choose(urlOf(target));
        if (share_.step() == FileShare::Replacing) {
            EXPECT_EQ(share_.nameToReplace().toStdString(), target.filename());
            replaces ? share_.replace() : share_.cancel();
        }
        reach(FileShare::Idle);
    }

    fs::path place() {
        fs::create_directories(folder_.path() / "place");
        return folder_.path() / "place";
    }

    static std::string textIn(const fs::path& file) { return platform::readFile(file, 1U << 20); }

    FileShare::Write prepare() {
        if (failsToPrepare_) {
            throw std::runtime_error("no store");
        }
        return [folder = folder_.path() / "Exports", text = text_, remark = remark_] {
            return ExportedFile{
                platform::writeExportFile(folder, "a b.csv", text, platform::ExportClearing::all),
                "Title", remark};
        };
    }

    TestFolder folder_;
    platform::MemoryLogSink log_;
    AppState appState_{log_};
    std::string text_ = "new";
    QString remark_;
    bool failsToPrepare_ = false;
    FileShare share_{[this] { return prepare(); }, "Exporting…", appState_};
};

} // namespace

TEST_F(FileShareTest, PutsACopyWhereTheUserSays) {
    struct Row {
        const char* name;
        std::optional<std::string> before;
        bool replaces;
        const char* after;
    };
    const Row rows[] = {
        {"a new file", {}, false, "new"},
        {"a file that is replaced", "old", true, "new"},
        {"a file that is kept", "old", false, "old"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const fs::path target = place() / (std::string(row.name) + ".csv");
        if (row.before) {
            platform::writeFileAtomically(target, *row.before, 0600);
        }
        saveTo(target, row.replaces);
        EXPECT_EQ(textIn(target), row.after);
        EXPECT_FALSE(appState_.hasIssue());
    }
    EXPECT_EQ(share_.suggestedTarget(), urlOf(place() / "a b.csv"));
}

TEST_F(FileShareTest, TakesAPlaceHoweverItsDialogSaysIt) {
    const auto typed = [&](const char* name) {
        return QUrl(QString::fromStdString(place() / name));
    };
    struct Row {
        const char* name;
        QUrl chosen;
        const char* saved;
    };
    const Row rows[] = {
        {"no scheme", typed("typed.csv"), "typed.csv"},
        {"neither scheme nor suffix", typed("bare"), "bare.csv"},
        {"another suffix", urlOf(place() / "a.txt"), "a.txt"},
        {"a number after a dot", urlOf(place() / "Backup 23.11.2026"), "Backup 23.11.2026.csv"},
        {"what is special in a URL", urlOf(place() / "a#b%41c?d"), "a#b%41c?d.csv"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        share_.save();
        reach(FileShare::Choosing);
        share_.choose(row.chosen);
        reach(FileShare::Idle);
        EXPECT_EQ(textIn(place() / row.saved), "new");
    }
}

TEST_F(FileShareTest, WritesWhatThereIsAtThatMomentAndNothingWhenTheDialogIsLeft) {
    saveTo(place() / "first.csv");
    text_ = "newer";
    share_.save();
    reach(FileShare::Choosing);
    share_.save();
    share_.cancel();
    EXPECT_EQ(share_.step(), FileShare::Idle);
    saveTo(place() / "second.csv");
    EXPECT_EQ(textIn(place() / "first.csv"), "new");
    EXPECT_EQ(textIn(place() / "second.csv"), "newer");
}

TEST_F(FileShareTest, SavesWhatWasExportedThoughAnotherExportHasClearedItAway) {
    share_.save();
    reach(FileShare::Choosing);
    text_ = "newer";
    FileShare other([this] { return prepare(); }, "Exporting…", appState_);
    other.save();
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.step() == FileShare::Choosing; }, 30'000));
    share_.choose(urlOf(place() / "first.csv"));
    reach(FileShare::Idle);
    EXPECT_EQ(textIn(place() / "first.csv"), "new");
}

TEST_F(FileShareTest, SaysThatAPlaceCannotBeWrittenAndLeavesWhatWasThere) {
    if (!mountSmallDisk(place())) {
        GTEST_SKIP() << "mounting a small disk is not permitted here";
    }
    const fs::path target = place() / "kept.csv";
    platform::writeFileAtomically(target, "old", 0600);
    fs::create_directory(place() / "folder.csv");
    const auto failsWith = [&](const QUrl& chosen, const char* message) {
        SCOPED_TRACE(message);
        appState_.dismissIssue();
        share_.save();
        reach(FileShare::Choosing);
        share_.choose(chosen);
        share_.replace();
        reach(FileShare::Idle);
        EXPECT_EQ(appState_.issue().title, "Couldn't save the export");
        EXPECT_EQ(appState_.issue().message.toStdString(),
                  std::string(message) + " Nothing there was changed.");
        EXPECT_EQ(textIn(target), "old");
    };
    failsWith(urlOf(place() / "none/file"), "The file couldn't be written to the place you chose.");
    failsWith(urlOf(place() / "folder.csv"),
              "The file couldn't be written to the place you chose.");
    failsWith(QUrl("sftp://host/file"), "The file couldn't be written to the place you chose.");
    failsWith(QUrl("file.csv"), "The file couldn't be written to the place you chose.");
    text_.assign(100'000, 'x');
    failsWith(urlOf(target), "There isn't enough space in the place you chose.");
    ASSERT_TRUE(makeReadOnly(place()));
    failsWith(urlOf(target), "The place you chose can't be written to.");
}

TEST_F(FileShareTest, SaysThatTheExportCouldNotBeWritten) {
    failsToPrepare_ = true;
    share_.save();
    EXPECT_EQ(share_.step(), FileShare::Idle);
    EXPECT_EQ(appState_.issue().title, "Couldn't prepare the export");
    failsToPrepare_ = false;
    appState_.dismissIssue();
    platform::writeFileAtomically(folder_.path() / "Exports", "in the way", 0600);
    share_.drag();
    reach(FileShare::Idle);
    EXPECT_EQ(appState_.issue().message, "Nothing was exported. Please try again.");
}

TEST_F(FileShareTest, HandsTheFileToADragUnlessThatIsOverBefore) {
    share_.drag();
    share_.endDrag();
    reach(FileShare::Idle);
    EXPECT_TRUE(share_.draggedFile().isEmpty());
    share_.drag();
    reach(FileShare::Dragging);
    EXPECT_EQ(share_.draggedFile(), urlOf(folder_.path() / "Exports/a b.csv"));
    EXPECT_EQ(textIn(folder_.path() / "Exports/a b.csv"), "new");
    share_.endDrag();
    EXPECT_EQ(share_.step(), FileShare::Idle);
}

TEST_F(FileShareTest, TellsARemarkBeforeASaveAndAfterADrag) {
    remark_ = "Mind this.";
    share_.save();
    reach(FileShare::Remarking);
    EXPECT_EQ(share_.remark(), remark_);
    share_.acceptRemark();
    EXPECT_EQ(share_.step(), FileShare::Choosing);
    share_.cancel();
    share_.drag();
    reach(FileShare::Dragging);
    share_.endDrag();
    EXPECT_EQ(share_.step(), FileShare::Remarking);
    share_.acceptRemark();
    EXPECT_EQ(share_.step(), FileShare::Idle);
}

} // namespace quillmere
