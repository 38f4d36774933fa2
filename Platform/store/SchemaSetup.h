#pragma once

namespace platform::store {

class Database;
class Schema;

/// Brings an opened database to a schema: creates the tables in an empty one, moves an older one
/// on, refuses with `foreign`, `newerSchema` or `damaged` what is not ours, newer or not as it
/// should be, before anything is written.
void setUpSchema(Database& database, const Schema& schema);

/// Throws `newerSchema` when another program has moved the file on meanwhile.
void checkNotNewer(Database& database, const Schema& schema);

} // namespace platform::store
