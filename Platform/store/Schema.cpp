#include "Platform/store/Schema.h"

#include <algorithm>

namespace platform::store {

const Schema::Migration* Schema::migrationFrom(int version) const {
    const auto found = std::ranges::find(migrations_, version, &Migration::from);
    return found == migrations_.end() ? nullptr : &*found;
}

} // namespace platform::store
