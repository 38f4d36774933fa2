#pragma once

#include "Platform/store/Database.h"
#include "Platform/store/RowKey.h"

#include <memory>

namespace platform::store {

class Store;
class Transaction;

/// The saved state of a store at one moment, for bulk reading on any one thread. Later commits do
/// not show. Throws `StoreError`.
class Snapshot {
public:
    explicit Snapshot(Store& store);
    ~Snapshot();

    [[nodiscard]] Revision revision() const { return revision_; }
    /// The connection that sees this state; for reading only.
    [[nodiscard]] Database& database() { return *database_; }

private:
    std::unique_ptr<Database> database_;
    std::unique_ptr<Transaction> transaction_;
    Revision revision_ = Revision::none;
};

} // namespace platform::store
