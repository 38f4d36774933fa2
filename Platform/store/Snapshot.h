#pragma once

#include "Platform/store/RowKey.h"
#include "Platform/store/Statement.h"

#include <memory>
#include <string_view>

namespace platform::store {

class Database;
class Store;
class Transaction;

/// The saved state of a store at one moment, for bulk reading on any one thread. Later commits do
/// not show. Throws `StoreError`.
class Snapshot {
public:
    explicit Snapshot(Store& store);
    ~Snapshot();

    [[nodiscard]] Revision revision() const { return revision_; }
    /// All rows of a record type: key, revision, fields. The statement must be gone before the
    /// snapshot.
    [[nodiscard]] Statement rows(std::string_view table);

private:
    Store& store_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<Transaction> transaction_;
    Revision revision_;
};

} // namespace platform::store
