#include "Platform/text/Collation.h"

#include "Platform/text/IcuStatus.h"

#include <unicode/coll.h>

#include <memory>

namespace platform {
namespace {

std::unique_ptr<icu::Collator> makeCollator() {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(
        icu::Collator::createInstance(icu::Locale::getEnglish(), status));
    requireIcu(status);
    collator->setStrength(icu::Collator::SECONDARY);
    collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_ON, status);
    requireIcu(status);
    return collator;
}

} // namespace

bool equalForReaderIgnoringCase(std::string_view a, std::string_view b) {
    thread_local const std::unique_ptr<icu::Collator> collator = makeCollator();
    UErrorCode status = U_ZERO_ERROR;
    const auto order = collator->compareUTF8(
        icu::StringPiece(a.data(), static_cast<std::int32_t>(a.size())),
        icu::StringPiece(b.data(), static_cast<std::int32_t>(b.size())), status);
    requireIcu(status);
    return order == UCOL_EQUAL;
}

} // namespace platform
