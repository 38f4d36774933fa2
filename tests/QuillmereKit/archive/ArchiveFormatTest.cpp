#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveCodingError.h"
#include "QuillmereKit/archive/TimeBankArchiveError.h"
#include "QuillmereKit/archive/TimeBankArchiveExport.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/QuillmereKit/KitTest.h"

#include <fstream>
#include <functional>

namespace quillmere::test {

namespace {

using Reason = TimeBankArchiveError::Reason;

constexpr Instant moment{1'780'000'000.25};

std::string fileText(const std::filesystem::path& path) {
    std::ifstream stream(path);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// One record of each type, as archives are written.
const std::string document = fileText(SAMPLE_ARCHIVE);

/// The same.
TimeBankArchive sample() {
    TimeBankArchive archive;
    archive.exportedAt = moment;
    archive.workEntries = {{uuid(4), {3}, std::nullopt, 15, "", {1}, {2}}};
    archive.balanceAdjustments = {
        {uuid(1), {1'779'999'999.123456}, -90, "in/out \"ü\"", "manual", {1'780'000'000}, moment}};
    archive.schedules = {{uuid(2), {-0.5}, {1, 2, 3, 4, 5, 6, 7}, {0}, {0}}};
    archive.settings = {{.id = uuid(3),
                         .startingBalanceMinutes = 7,
                         .weekdayMinutes = {480, 480, 480, 480, 480, 0, 0},
                         .quickActionMinutes = std::vector<std::int64_t>{15, 30, 60, 120},
                         .visibleAdjustmentKindsRawValue = "other",
                         .customAdjustmentCategoriesRawValue = "[]",
                         .hasCompletedOnboarding = true,
                         .modifiedAt = {1}}};
    return archive;
}

/// The document with the first occurrence of a text replaced.
std::string with(std::string_view text, std::string_view replacement) {
    std::string changed = document;
    return changed.replace(changed.find(text), text.size(), replacement);
}

template <class Record>
void fill(std::vector<Record>& records, std::size_t count) {
    records.assign(count, records.front());
    for (std::size_t i = 0; i < count; ++i) {
        Uuid::Bytes bytes{};
        bytes[0] = static_cast<std::uint8_t>(i);
        bytes[1] = static_cast<std::uint8_t>(i >> 8);
        bytes[2] = static_cast<std::uint8_t>(i >> 16);
        records[i].id = Uuid(bytes);
    }
}

} // namespace

TEST(ArchiveFormat, WritesTheDocumentedLayoutAndReadsItBack) {
    EXPECT_EQ(sample().encodedJSON() + "\n", document);
    EXPECT_EQ(TimeBankArchive::decodeJSON(document), sample());
}

TEST(ArchiveFormat, AcceptsWhatOtherProgramsMayWrite) {
    const std::pair<const char*, std::string> rows[] = {
        {"unknown keys", with(R"("minutes": -90)", R"("minutes": -90, "mood": {"a": [1e9]})")},
        {"null for an absent end", with(R"("startedAt": 3)", R"("startedAt": 3, "endedAt": null)")},
        {"identifier in lower case", with("000000000001", "00000000000a")},
        {"date with an exponent", with("1780000000,", "1.78e9,")},
        {"no optional settings", with(R"("quickActionMinutes")", R"("q")")},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(TimeBankArchive::decodeJSON(text).recordCount(), 4U);
    }
    EXPECT_EQ(TimeBankArchive::decodeJSON(rows[4].second).settings[0].quickActionMinutes,
              std::nullopt);
}

TEST(ArchiveFormat, RefusesWhatIsNoArchive) {
    const auto nested = [](std::size_t depth) {
        return std::string(depth, '[') + std::string(depth, ']');
    };
    const std::pair<const char*, std::string> rows[] = {
        {"nothing", ""},
        {"cut short", document.substr(0, document.size() / 2)},
        {"byte order mark", "\xEF\xBB\xBF" + document},
        {"a list", "[" + document + "]"},
        {"no settings", with(R"("settings")", R"("other")")},
        {"null for a list",
         with("[\n    {\n      \"createdAt\": 1780000000", "null, \"x\": [{\"y\": 1")},
        {"an entry that is no object", with("\"workEntries\": [", "\"workEntries\": [1,")},
        {"key twice", with(R"("minutes": -90)", R"("minutes": -90, "minutes": -90)")},
        {"lone surrogate", with("in/out", R"(\ud83d)")},
        {"text for a number", with("-90", R"("-90")")},
        {"fraction for an integer", with("-90", "-90.5")},
        {"integer beyond 64 bits", with("-90", "-9223372036854775809")},
        {"version beyond 64 bits", with("Version\": 1", "Version\": 18446744073709551616")},
        {"date beyond the doubles", with("1780000000,", "1e400,")},
        {"text for a date", with("1780000000,", R"("2026-05-28",)")},
        {"number for a boolean", with("true", "1")},
        {"identifier too short", with("0000-000000000001", "0000-1")},
        {"text among weekdays", with("        3,", R"(        "3",)")},
        {"null for a note", with(R"("")", "null")},
        {"a thousand deep in an unknown key", with("-90", "-90, \"x\": " + nested(1000))},
        {"20 MB of brackets", std::string(TimeBankArchive::maximumFileBytes, '[')},
        {"20 MB of pairs", nested(TimeBankArchive::maximumFileBytes / 2)},
    };
    for (const auto& [name, text] : rows) {
        SCOPED_TRACE(name);
        EXPECT_THROW((void)TimeBankArchive::decodeJSON(text), TimeBankArchiveCodingError);
    }
    TimeBankArchive notFinite;
    notFinite.exportedAt = {std::numeric_limits<double>::infinity()};
    EXPECT_THROW((void)notFinite.encodedJSON(), TimeBankArchiveCodingError);
}

TEST(ArchiveFormat, ValidatesVersionCountsListsAndIdentifiers) {
    struct Row {
        const char* name;
        std::function<void(TimeBankArchive&)> change;
        std::optional<Reason> reason;
    };
    const Row rows[] = {
        {"as it is", [](auto&) {}, std::nullopt},
        {"most entries", [](auto& a) { fill(a.workEntries, 100'000); }, std::nullopt},
        {"entries", [](auto& a) { fill(a.workEntries, 100'001); }, Reason::tooManyRecords},
        {"changes", [](auto& a) { fill(a.balanceAdjustments, 100'001); }, Reason::tooManyRecords},
        {"most schedules", [](auto& a) { fill(a.schedules, 10'000); }, std::nullopt},
        {"schedules", [](auto& a) { fill(a.schedules, 10'001); }, Reason::tooManyRecords},
        {"most settings", [](auto& a) { fill(a.settings, 100); }, std::nullopt},
        {"settings", [](auto& a) { fill(a.settings, 101); }, Reason::tooManyRecords},
        {"eight days", [](auto& a) { a.schedules[0].weekdayMinutes.push_back(0); },
         Reason::malformedSchedule},
        {"six days", [](auto& a) { a.settings[0].weekdayMinutes.pop_back(); },
         Reason::malformedSchedule},
        {"three presets", [](auto& a) { a.settings[0].quickActionMinutes->pop_back(); },
         Reason::malformedQuickActions},
        {"no presets", [](auto& a) { a.settings[0].quickActionMinutes.reset(); }, std::nullopt},
        {"one identifier in two lists", [](auto& a) { a.schedules[0].id = a.workEntries[0].id; },
         std::nullopt},
        {"one identifier twice", [](auto& a) { a.schedules.push_back(a.schedules[0]); },
         Reason::duplicateIdentifiers},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        TimeBankArchive archive = sample();
        row.change(archive);
        std::optional<Reason> reason;
        try {
            archive.validate();
        } catch (const TimeBankArchiveError& error) {
            reason = error.reason();
        }
        EXPECT_EQ(reason, row.reason);
    }
}

TEST(ArchiveFormat, SaysWhatIsWrong) {
    try {
        (void)TimeBankArchive::decodeJSON(with("Version\": 1", "Version\": 2"));
        FAIL();
    } catch (const TimeBankArchiveError& error) {
        EXPECT_EQ(error, TimeBankArchiveError::unsupportedSchema(2));
        EXPECT_STREQ(error.what(), "This archive uses unsupported format version 2.");
    }
    TimeBankArchive archive = sample();
    EXPECT_EQ(archive.importObstacle(TimeBankArchive::maximumFileBytes), std::nullopt);
    EXPECT_EQ(archive.importObstacle(TimeBankArchive::maximumFileBytes + 1),
              "This archive is larger than the 20 MB that can be imported.");
    fill(archive.settings, 101);
    EXPECT_EQ(archive.importObstacle(1),
              "This archive contains too many records to import safely.");
}

TEST_F(StoreTest, ExportsEverythingSortedIntoAFolderOfItsOwn) {
    insertChange(now, 1, uuid(2));
    insertChange(now, 2, uuid(1));
    insertChange(now - 1, 3, uuid(3));
    clock.set(berlin(3, 7, 15.0 + 42.0 / 60 + 10.0 / 3600, 2025));
    const auto exported = TimeBankArchiveExport::ofStore(*context);
    EXPECT_EQ(exported.filename, "Quillmere-Data-2025-03-07-154210.json");

    const TestFolder temporary;
    const std::filesystem::path folder = temporary.path() / "Quillmere Exports";
    std::filesystem::create_directory(folder);
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    std::ofstream(folder / "earlier.json") << "{}";

    const auto file = exported.write(temporary.path());
    EXPECT_EQ(file.importObstacle, std::nullopt);
    const std::string text = fileText(file.path);
    EXPECT_EQ(text.size(), file.byteCount);
    const TimeBankArchive archive = TimeBankArchive::decodeJSON(text);
    EXPECT_EQ(archive.exportedAt, clock.now());
    std::vector<Uuid> order;
    for (const auto& record : archive.balanceAdjustments) {
        order.push_back(record.id);
    }
    EXPECT_EQ(order, (std::vector{uuid(3), uuid(1), uuid(2)}));

    const auto mode = [](const std::filesystem::path& path) {
        return std::filesystem::status(path).permissions();
    };
    EXPECT_EQ(mode(folder), std::filesystem::perms{0700});
    EXPECT_EQ(mode(file.path), std::filesystem::perms{0600});
    EXPECT_FALSE(std::filesystem::exists(folder / "earlier.json"));
}

} // namespace quillmere::test
