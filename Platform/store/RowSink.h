#pragma once

#include "Platform/store/RowKey.h"

namespace platform::store {

/// Where a context leaves word of records that were inserted, changed or deleted; the receiver acts
/// on it when the context publishes.
template <class Values>
class RowSink {
public:
    virtual ~RowSink() = default;
    /// The record `key`, known as `former` so far, has these values now, or is gone (null). The
    /// values are valid during the call only.
    virtual void stage(RowKey key, RowKey former, const Values* values) = 0;
};

} // namespace platform::store
