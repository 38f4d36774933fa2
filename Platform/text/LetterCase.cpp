#include "Platform/text/LetterCase.h"

#include "Platform/text/IcuStatus.h"
#include "Platform/text/Utf8.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>

#include <algorithm>

namespace platform {
namespace {

std::string lowercasedAscii(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return lower;
}

std::string lowercasedUnicode(std::string_view text) {
    const icu::StringPiece source(text.data(), static_cast<std::int32_t>(text.size()));
    UErrorCode status = U_ZERO_ERROR;
    std::string lower;
    icu::StringByteSink<std::string> lowerSink(&lower);
    icu::CaseMap::utf8ToLower("", 0, source, lowerSink, nullptr, status);
    requireIcu(status);
    const auto* composition = icu::Normalizer2::getNFCInstance(status);
    requireIcu(status);
    std::string composed;
    icu::StringByteSink<std::string> composedSink(&composed);
    composition->normalizeUTF8(0, lower, composedSink, nullptr, status);
    requireIcu(status);
    return composed;
}

} // namespace

std::string lowercasedForComparison(std::string_view text) {
    const bool isAscii = std::all_of(text.begin(), text.end(),
                                     [](char c) { return static_cast<signed char>(c) >= 0; });
    return isAscii ? lowercasedAscii(text) : lowercasedUnicode(repairedUtf8(text));
}

} // namespace platform
