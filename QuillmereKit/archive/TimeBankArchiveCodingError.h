#pragma once

#include <stdexcept>

namespace quillmere {

/// A text that does not read as an archive, or an archive that JSON cannot hold (a date that is not
/// finite, a text that is not UTF-8). `what()` says where, for a log; it quotes nothing of the
/// data.
class TimeBankArchiveCodingError final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace quillmere
