#pragma once

#include <exception>

namespace quillmere {

/// Why a chosen file is not even decoded.
class ArchiveImportReadError final : public std::exception {
public:
    enum class Reason { fileTooLarge };

    explicit ArchiveImportReadError(Reason reason) : reason_(reason) {}

    [[nodiscard]] Reason reason() const { return reason_; }
    [[nodiscard]] const char* what() const noexcept override {
        return "The selected archive is larger than 20 MB.";
    }

private:
    Reason reason_;
};

} // namespace quillmere
