#include "QuillmereKit/archive/TimeBankArchiveError.h"

#include <utility>

namespace quillmere {

namespace {

const char* description(TimeBankArchiveError::Reason reason) {
    switch (reason) {
    case TimeBankArchiveError::Reason::unsupportedSchema:
        return "This archive uses unsupported format version ";
    case TimeBankArchiveError::Reason::tooManyRecords:
        return "This archive contains too many records to import safely.";
    case TimeBankArchiveError::Reason::malformedSchedule:
        return "This archive contains an invalid weekly schedule.";
    case TimeBankArchiveError::Reason::malformedQuickActions:
        return "This archive contains invalid quick-action settings.";
    case TimeBankArchiveError::Reason::duplicateIdentifiers:
        return "This archive contains duplicate record identifiers.";
    }
    return "";
}

} // namespace

TimeBankArchiveError::TimeBankArchiveError(Reason reason)
    : TimeBankArchiveError(reason, 0, description(reason)) {
}

TimeBankArchiveError::TimeBankArchiveError(Reason reason, std::int64_t version,
                                           std::string description)
    : reason_(reason), version_(version), description_(std::move(description)) {
}

TimeBankArchiveError TimeBankArchiveError::unsupportedSchema(std::int64_t version) {
    return {Reason::unsupportedSchema, version,
            description(Reason::unsupportedSchema) + std::to_string(version) + "."};
}

} // namespace quillmere
