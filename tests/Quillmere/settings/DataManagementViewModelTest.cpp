#include "Quillmere/settings/DataManagementViewModel.h"

#include "Platform/files/Files.h"
#include "Platform/files/UserFolders.h"
#include "Quillmere/shell/AppStorageController.h"
#include "QuillmereKit/archive/TimeBankArchiveExport.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/Quillmere/dashboard/TimeBankFixture.h"
#include "tests/Quillmere/shell/FakeStoreOpener.h"
#include "tests/Quillmere/widget/CountingWidgetCenter.h"

#include <QtTest/QTest>

#include <optional>

namespace quillmere {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t sizeLimit = 20'971'520;
constexpr auto empty = R"({"schemaVersion":1,"exportedAt":0,"workEntries":[],)"
                       R"("balanceAdjustments":[],"schedules":[],"settings":[]})";

class DataManagementTest : public TimeBankFixture {
protected:
    DataManagementTest() { setUp(); }

    void finish() {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !appState_.work()->isRunning(); }, 60'000));
    }

    fs::path file(std::string_view bytes) {
        fs::path path = folder_.path() / "archive.json";
        platform::writeFileAtomically(path, bytes, 0600);
        return path;
    }

    void read(const fs::path& path) {
        model_.readArchive({QUrl::fromLocalFile(QString::fromStdString(path))});
        finish();
    }

    void merge(std::string_view bytes) {
        read(file(bytes));
        model_.mergeArchive();
        finish();
    }

    /// Exports by a save dialog.
    std::string exported() {
        FileShare& share = *model_.archiveShare();
        share.save();
        finish();
        const fs::path target = folder_.path() / "export.json";
        share.choose(QUrl::fromLocalFile(QString::fromStdString(target)));
        share.replace();
        finish();
        return platform::readFile(target, 2 * sizeLimit);
    }

    std::size_t changes() { return session().context().fetch<BalanceAdjustment>().size(); }

    const TestFolder folder_;
    FakeStoreOpener opener_;
    AppModelContainer container_{opener_, log_};
    AppStorageController storage_{container_, container_.make(), time_};
    platform::UserFolders folders_{folder_.path(), folder_.path(), folder_.path()};
    platform::MemoryPreferences widget_;
    CountingWidgetCenter widgets_;
    DataManagementViewModel model_{session(), {appState_, storage_, folders_, {widget_, widgets_}}};
};

} // namespace

TEST_F(DataManagementTest, AsksForAnImportOfTheArchivesRecordsUpToItsSizeLimit) {
    std::string padded = empty;
    padded.resize(sizeLimit, ' ');
    read(file(padded));
    EXPECT_TRUE(model_.hasPendingImport());
    EXPECT_EQ(model_.importTitle(), "Import 0 records?");
    model_.cancelImport();
    EXPECT_FALSE(model_.hasPendingImport());

    read(file(padded + ' '));
    EXPECT_FALSE(model_.hasPendingImport());
    EXPECT_EQ(issueTitle(), "Couldn't read the archive");

    read(file(exported()));
    EXPECT_EQ(model_.importTitle(), "Import 1 records?");
}

TEST_F(DataManagementTest, RefusesFilesThatAreNoArchive) {
    const auto refuses = [this](const char* name, const QUrl& url) {
        SCOPED_TRACE(name);
        appState_.dismissIssue();
        model_.selectArchive();
        model_.readArchive({url});
        finish();
        EXPECT_FALSE(model_.showingArchiveImporter());
        EXPECT_FALSE(model_.hasPendingImport());
        EXPECT_EQ(issueTitle(), "Couldn't read the archive");
        EXPECT_EQ(appState_.issue().message,
                  "Choose a valid Quillmere JSON data archive up to 20 MB.");
    };
    const auto local = [](const fs::path& path) {
        return QUrl::fromLocalFile(QString::fromStdString(path));
    };
    refuses("missing", local(folder_.path() / "none.json"));
    refuses("a folder", local(folder_.path()));
    refuses("elsewhere", QUrl("https://example.org/archive.json"));
    refuses("empty", local(file("")));
    refuses("cut off", local(file(std::string(empty).substr(0, 60))));
    refuses("another version", local(file(R"({"schemaVersion":2,"exportedAt":0,"workEntries":[],)"
                                          R"("balanceAdjustments":[],"schedules":[],)"
                                          R"("settings":[]})")));
    appState_.dismissIssue();
    model_.readArchive({});
    EXPECT_EQ(issueTitle(), "") << "an empty selection";
}

TEST_F(DataManagementTest, MergesWhatWasExportedAndTellsWhatBecameOfIt) {
    BalanceAdjustment& edited = record(60, -day, "edited later");
    record(30, 0, "kept");
    BalanceAdjustment& deleted = record(15, 0, "deleted later");
    const std::string archive = exported();
    clock_.advance(hour);
    edited.setMinutes(90);
    edited.setModifiedAt(now - hour);
    session().context().remove(deleted);
    session().context().save();

    merge(archive);
    EXPECT_EQ(model_.noticeMessage(), "1 added, 1 updated, and 2 already current.");
    EXPECT_FALSE(model_.hasPendingImport());
    EXPECT_EQ(changes(), 4U) << "the three, and the mark that the repairs set";
    EXPECT_EQ(edited.minutes(), 60) << "the screens' records have it";
    const QString first = model_.noticeId();
    model_.dismissNotice();
    EXPECT_EQ(model_.noticeId(), "");

    merge(archive);
    EXPECT_EQ(model_.noticeMessage(), "0 added, 0 updated, and 4 already current.");
    EXPECT_NE(model_.noticeId(), first);
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(DataManagementTest, AFailureChangesNothingAndSaysSo) {
    record(60, 0);
    const std::string archive = exported();
    session().context().removeAll<BalanceAdjustment>();
    session().context().save();
    read(file(archive));
    lockStore();
    model_.mergeArchive();
    finish();
    EXPECT_EQ(issueTitle(), "Couldn't import the archive");
    EXPECT_EQ(appState_.issue().message,
              "The archive couldn't be fully imported. Reopen Quillmere before trying again.");
    EXPECT_EQ(model_.noticeId(), "");
    model_.askToErase();
    model_.eraseAll();
    finish();
    EXPECT_EQ(issueTitle(), "Couldn't erase your data");
    EXPECT_EQ(appState_.issue().message, "No deletion was completed. Please try again.");
    unlockStore();
    EXPECT_EQ(changes(), 0U);
    EXPECT_NE(session().settingsRecord(), nullptr);
    EXPECT_TRUE(widget_.empty());
    EXPECT_EQ(widgets_.reloads, 0);
}

TEST_F(DataManagementTest, ErasesEverythingAndLeavesTheWidgetUnconfigured) {
    record(60, 0);
    WidgetSnapshotStore::save(WidgetSnapshot::placeholder(clock_), widget_);
    model_.askToErase();
    EXPECT_TRUE(model_.showingEraseConfirmation());
    model_.eraseAll();
    EXPECT_FALSE(model_.showingEraseConfirmation());
    EXPECT_TRUE(appState_.work()->isHoldingInput());
    finish();
    EXPECT_EQ(session().settingsRecord(), nullptr);
    EXPECT_EQ(changes(), 0U);
    EXPECT_FALSE(WidgetSnapshotStore::load(widget_, clock_).isConfigured);
    EXPECT_EQ(widgets_.reloads, 1);
    EXPECT_FALSE(appState_.hasIssue());
}

TEST_F(DataManagementTest, SaysWhenTheExportCouldNotBeImportedAgain) {
    const platform::Uuid id = record(60, 0).id();
    session().context().insert(std::make_unique<BalanceAdjustment>(
        id, platform::Instant{now}, 1, "", BalanceAdjustmentKind::manual, now, now));
    session().context().save();
    FileShare& share = *model_.archiveShare();
    share.save();
    finish();
    EXPECT_EQ(share.step(), FileShare::Remarking);
    EXPECT_EQ(share.remark(),
              "This archive contains duplicate record identifiers. You can keep it as a copy of "
              "your data, but it can't be merged back.");
}

} // namespace quillmere
