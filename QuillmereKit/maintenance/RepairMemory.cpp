#include "QuillmereKit/maintenance/RepairMemory.h"

#include "QuillmereKit/records/RecordTimestampValidation.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace quillmere {

namespace {

/// Raise it whenever a repair learns to find new faults: marks made before then no longer count.
constexpr std::string_view ruleVersion = "1";

template <class Number>
std::string numberText(Number number) {
    std::array<char, 64> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end.ptr};
}

template <class Number>
std::optional<Number> number(std::string_view text) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(value)
                                                                    : std::nullopt;
}

std::string_view takeWord(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    return word;
}

/// Words split by one space: rules, revision, newest modification, finding.
std::string noteText(const RepairMark& mark) {
    return std::string(ruleVersion) + ' ' + numberText(static_cast<std::int64_t>(mark.revision)) +
           ' ' + numberText(mark.newestModifiedAt.secondsSince1970) + ' ' + mark.finding;
}

std::optional<RepairMark> markOf(std::string_view note) {
    if (takeWord(note) != ruleVersion) {
        return std::nullopt;
    }
    const auto revision = number<std::int64_t>(takeWord(note));
    const auto newest = number<double>(takeWord(note));
    if (!revision || !newest) {
        return std::nullopt;
    }
    return RepairMark{platform::store::Revision{*revision}, {*newest}, std::string(note)};
}

} // namespace

RepairMemory::RepairMemory(platform::store::Context& context, std::string_view repair)
    : context_(context), name_("repaired." + std::string(repair)) {
}

std::optional<RepairMark> RepairMemory::recall(platform::Instant now) const {
    const auto note = context_.note(name_);
    auto mark = note ? markOf(*note) : std::nullopt;
    const bool isDoubtful =
        mark && mark->newestModifiedAt > now + RecordTimestampValidation::maximumFutureSkew;
    return isDoubtful ? std::nullopt : mark;
}

void RepairMemory::finish(const RepairMark& mark, bool changed, std::size_t looked) const {
    if (changed || looked >= worthRemembering) {
        context_.setNote(name_, noteText(mark));
        context_.save();
    }
}

} // namespace quillmere
