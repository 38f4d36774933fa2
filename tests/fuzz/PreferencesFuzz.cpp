// Whatever the preferences' file holds, every kind of value can be asked for, setting one works,
// and what else could be read before reads the same afterwards.

#include "Platform/preferences/FilePreferences.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/fuzz/FuzzTarget.h"

#include <fstream>
#include <tuple>

namespace {

auto readAll(const platform::Preferences& preferences) {
    return std::tuple(preferences.boolean("flag"), preferences.number("number"),
                      preferences.string("text"), preferences.data("bytes"));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const TestFolder folder;
    std::ofstream(folder.path() / "preferences.json", std::ios::binary | std::ios::trunc)
        << textOf(data, size);
    platform::FilePreferences preferences(folder.path());
    const auto before = readAll(preferences);
    require(preferences.setString("added", "value"));
    require(readAll(preferences) == before);
    require(preferences.string("added") == "value");
    return 0;
}
