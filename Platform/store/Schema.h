#pragma once

namespace platform::store {

/// The record types of a store, its application id and schema version, and the steps that move older
/// files on.
class Schema;

} // namespace platform::store
