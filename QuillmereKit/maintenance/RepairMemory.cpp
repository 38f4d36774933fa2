#include "QuillmereKit/maintenance/RepairMemory.h"

#include "QuillmereKit/maintenance/NoteWords.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"

#include <cstdint>

namespace quillmere {

namespace {

/// Raise it whenever a repair learns to find new faults: marks made before then no longer count.
constexpr std::string_view ruleVersion = "1";

/// Rules, revision, newest modification, finding.
std::string noteText(const RepairMark& mark) {
    return std::string(ruleVersion) + ' ' +
           NoteWords::text(static_cast<std::int64_t>(mark.revision)) + ' ' +
           NoteWords::text(mark.newestModifiedAt.secondsSince1970) + ' ' + mark.finding;
}

std::optional<RepairMark> markOf(std::string_view note) {
    if (NoteWords::take(note) != ruleVersion) {
        return std::nullopt;
    }
    const auto revision = NoteWords::number<std::int64_t>(NoteWords::take(note));
    const auto newest = NoteWords::number<double>(NoteWords::take(note));
    if (!revision || !newest) {
        return std::nullopt;
    }
    return RepairMark{platform::store::Revision{*revision}, {*newest}, std::string(note)};
}

} // namespace

RepairMemory::RepairMemory(platform::store::Context& context, std::string_view name)
    : context_(context), name_(name) {
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
