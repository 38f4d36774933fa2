#include "Platform/text/Characters.h"

#include "Platform/text/IcuStatus.h"

#include <unicode/brkiter.h>
#include <unicode/utext.h>

#include <algorithm>
#include <memory>
#include <string>

namespace platform {
namespace {

/// Kept, because building them takes far longer than using them on a note.
thread_local std::unique_ptr<icu::BreakIterator> keptBoundaries;

icu::BreakIterator& characterBoundaries() {
    if (!keptBoundaries) {
        UErrorCode status = U_ZERO_ERROR;
        keptBoundaries.reset(
            icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
        requireIcu(status);
    }
    return *keptBoundaries;
}

bool isOneByteEach(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<signed char>(c) >= 0 && c != '\r'; });
}

/// A place in the text after a number of whole characters.
struct Reached {
    std::size_t bytes;
    std::size_t characters;
};

Reached advance(std::string_view text, std::size_t mostCharacters) {
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    requireIcu(status);
    const std::unique_ptr<UText, decltype(&utext_close)> closing(&source, utext_close);
    auto& boundaries = characterBoundaries();
    boundaries.setText(&source, status);
    requireIcu(status);
    Reached reached{0, 0};
    while (reached.characters < mostCharacters) {
        const auto next = boundaries.next();
        if (next == icu::BreakIterator::DONE)
            break;
        reached = {static_cast<std::size_t>(next), reached.characters + 1};
    }
    return reached;
}

} // namespace

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count)
        return text;
    return text.substr(0, isOneByteEach(text) ? count : advance(text, count).bytes);
}

std::size_t characterCount(std::string_view text) {
    return isOneByteEach(text) ? text.size() : advance(text, text.size()).characters;
}

} // namespace platform
