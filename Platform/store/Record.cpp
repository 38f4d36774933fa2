#include "Platform/store/Record.h"

#include "Platform/store/TypeStorage.h"

namespace platform::store {

RecordBase::~RecordBase() = default;

void RecordBase::markChanged(std::size_t field, bool differs) {
    changed_.set(field, differs);
    if (differs && !listedAsChanged_) {
        storage_->markChanged(*this);
    }
}

} // namespace platform::store
