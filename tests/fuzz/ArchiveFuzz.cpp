// Whatever is taken for an archive is written and read back alike; everything else is refused by
// one of the two errors.

#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveCodingError.h"
#include "QuillmereKit/archive/TimeBankArchiveError.h"
#include "tests/fuzz/FuzzTarget.h"

using quillmere::TimeBankArchive;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const auto archive = TimeBankArchive::decodeJSON(textOf(data, size));
        const std::string written = archive.encodedJSON();
        const auto back = TimeBankArchive::decodeJSON(written);
        require(back == archive);
        require(back.encodedJSON() == written);
    } catch (const quillmere::TimeBankArchiveCodingError&) { // NOLINT(bugprone-empty-catch)
    } catch (const quillmere::TimeBankArchiveError&) {       // NOLINT(bugprone-empty-catch)
    }
    return 0;
}
