#pragma once

#include "Platform/store/RowKey.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>

namespace platform::store {

class RecordBase;

/// Record objects by their keys. Keys follow each other closely, so the map keeps neighbours in one
/// block: many records cost little more than a pointer each, and are met in the order of memory.
class IdentityMap {
public:
    [[nodiscard]] bool isEmpty() const { return blocks_.empty(); }

    /// Null when there is none.
    [[nodiscard]] RecordBase* find(RowKey key) const {
        const auto block = blocks_.find(number(key) / blockSize);
        return block == blocks_.end() ? nullptr : block->second[number(key) % blockSize];
    }

    void set(RowKey key, RecordBase& record) {
        blocks_[number(key) / blockSize][number(key) % blockSize] = &record;
    }

private:
    static constexpr std::size_t blockSize = 32;

    static std::size_t number(RowKey key) { return static_cast<std::size_t>(key); }

    std::unordered_map<std::size_t, std::array<RecordBase*, blockSize>> blocks_;
};

} // namespace platform::store
