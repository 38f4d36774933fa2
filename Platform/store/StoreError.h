#pragma once

#include <stdexcept>
#include <string>

namespace platform::store {

/// What went wrong in the store, as far as callers tell cases apart.
enum class StoreFault {
    cannotOpen,  ///< the file or its folder cannot be created or opened
    readOnly,    ///< the file or its file system does not allow writing
    diskFull,    ///< no space left (or quota exhausted)
    locked,      ///< another program kept the store locked for too long
    damaged,     ///< the file is not a whole, valid database
    foreign,     ///< a database, but not one of ours
    newerSchema, ///< written by a newer version of the program
    notUnique,   ///< a value would be there twice in a field that has each value once
    io,          ///< any other input or output failure
    misuse,      ///< a request the store cannot carry out (programmer fault that input can cause)
};

/// The one exception the store throws. `what()` is an English sentence with the details, for the
/// log; users are shown texts of the application's own.
class StoreError : public std::runtime_error {
public:
    StoreError(StoreFault fault, const std::string& description)
        : std::runtime_error(description), fault_(fault) {}
    [[nodiscard]] StoreFault fault() const { return fault_; }

private:
    StoreFault fault_;
};

} // namespace platform::store
