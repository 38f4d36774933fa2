#include "Platform/store/Snapshot.h"

#include "Platform/store/Store.h"
#include "Platform/store/Transaction.h"

namespace platform::store {

Snapshot::Snapshot(Store& store) : database_(store.connect()) {
    // Who reads in bulk meets every page once; keeping the pages would only take memory.
    database_->execute("PRAGMA cache_size = -256");
    transaction_ = std::make_unique<Transaction>(*database_, Transaction::Kind::read);
    revision_ = Revision{database_->integer("SELECT revision FROM store_meta")};
}

Snapshot::~Snapshot() = default;

} // namespace platform::store
