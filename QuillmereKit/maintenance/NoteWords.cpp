#include "QuillmereKit/maintenance/NoteWords.h"

#include <algorithm>
#include <cstdint>

namespace quillmere::NoteWords {

using platform::store::RowKey;

namespace {

std::string_view takeUpTo(char separator, std::string_view& text) {
    const std::string_view part = text.substr(0, text.find(separator));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

} // namespace

std::string_view take(std::string_view& text) {
    return takeUpTo(' ', text);
}

std::string list(const std::vector<RowKey>& keys) {
    std::string joined;
    for (const RowKey key : keys) {
        joined += joined.empty() ? "" : ",";
        joined += text(static_cast<std::int64_t>(key));
    }
    return joined;
}

std::vector<RowKey> keys(std::string_view list) {
    std::vector<RowKey> keys;
    while (!list.empty()) {
        keys.push_back(RowKey{number<std::int64_t>(takeUpTo(',', list)).value_or(0)});
    }
    return keys;
}

} // namespace quillmere::NoteWords
