#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace quillmere {

/// Why an archive that could be read is not imported. `what()` is the sentence users are shown.
class TimeBankArchiveError final : public std::exception {
public:
    enum class Reason {
        unsupportedSchema,
        tooManyRecords,
        malformedSchedule,
        malformedQuickActions,
        duplicateIdentifiers,
    };

    /// For every reason but `unsupportedSchema`.
    explicit TimeBankArchiveError(Reason reason);
    /// An `unsupportedSchema` error for the version that the archive has.
    [[nodiscard]] static TimeBankArchiveError unsupportedSchema(std::int64_t version);

    [[nodiscard]] Reason reason() const { return reason_; }
    /// The archive's version where the reason is `unsupportedSchema`, else 0.
    [[nodiscard]] std::int64_t version() const { return version_; }
    [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

    friend bool operator==(const TimeBankArchiveError& a, const TimeBankArchiveError& b) {
        return a.reason_ == b.reason_ && a.version_ == b.version_;
    }

private:
    TimeBankArchiveError(Reason reason, std::int64_t version, std::string description);

    Reason reason_;
    std::int64_t version_ = 0;
    std::string description_;
};

} // namespace quillmere
