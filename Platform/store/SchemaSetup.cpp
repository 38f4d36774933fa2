#include "Platform/store/SchemaSetup.h"

#include "Platform/base/Uuid.h"
#include "Platform/store/Database.h"
#include "Platform/store/Schema.h"
#include "Platform/store/StoreError.h"
#include "Platform/store/Transaction.h"

#include <string>

namespace platform::store {

namespace {

// The store's own tables, frozen.
//
// store_meta       one row: the file's random id, the latest save's revision, and a counter that
//                  exists to be written when a failed commit has to be overwritten in the log
// store_note       small texts kept beside the records
// store_tombstone  what was deleted: the type's table, the row's key, the record's id, the save
constexpr const char* ownTables =
    "CREATE TABLE store_meta (singleton INTEGER PRIMARY KEY CHECK (singleton = 1),"
    " store_id BLOB NOT NULL, revision INTEGER NOT NULL, failed_commits INTEGER NOT NULL) STRICT;"
    "CREATE TABLE store_note (name TEXT PRIMARY KEY, text TEXT NOT NULL) STRICT, WITHOUT ROWID;"
    "CREATE TABLE store_tombstone (type TEXT NOT NULL, row_key INTEGER NOT NULL, id BLOB NOT NULL,"
    " revision INTEGER NOT NULL, PRIMARY KEY (type, row_key)) STRICT, WITHOUT ROWID;"
    "CREATE INDEX store_tombstone_revision ON store_tombstone (type, revision)";

std::string_view declaration(ColumnType type) {
    switch (type) {
    case ColumnType::integer:
    case ColumnType::boolean:
        return " INTEGER NOT NULL";
    case ColumnType::text:
        return " TEXT NOT NULL";
    case ColumnType::uuid:
        return " BLOB NOT NULL";
    case ColumnType::instant:
        return " ANY NOT NULL";
    case ColumnType::optionalInstant:
        return " ANY";
    }
    return {};
}

void createTable(Database& database, const TableDescription& table) {
    const std::string name(table.name);
    std::string sql = "CREATE TABLE IF NOT EXISTS " + name +
                      " (row_key INTEGER PRIMARY KEY AUTOINCREMENT, revision INTEGER NOT NULL";
    for (const Column& column : table.columns) {
        sql += ", ";
        sql += column.name;
        sql += declaration(column.type);
    }
    database.execute(sql + ") STRICT");
    database.execute("CREATE INDEX IF NOT EXISTS " + name + "_revision ON " + name + " (revision)");
    if (!table.uniqueColumn.empty()) {
        const std::string unique(table.uniqueColumn);
        database.execute("CREATE UNIQUE INDEX IF NOT EXISTS " + name + "_" + unique + " ON " +
                         name + " (" + unique + ")");
    }
}

void createOwnTables(Database& database, const Schema& schema) {
    database.execute(ownTables);
    database.execute("PRAGMA application_id = " + std::to_string(schema.applicationId()));
    const Uuid id = Uuid::random();
    Statement meta = database.prepare("INSERT INTO store_meta VALUES (1, ?, 0, 0)");
    meta.bindBlob(1, id.bytes());
    meta.run();
}

void migrate(Database& database, const Schema& schema, int from) {
    for (int version = from; version < schema.version(); ++version) {
        const Schema::Migration* migration = schema.migrationFrom(version);
        if (migration == nullptr) {
            throw StoreError(StoreFault::misuse,
                             "no migration from schema version " + std::to_string(version));
        }
        for (const std::string& sql : migration->statements) {
            database.execute(sql);
        }
    }
}

int storedVersion(Database& database) {
    return static_cast<int>(database.integer("PRAGMA user_version"));
}

bool isEmpty(Database& database) {
    return database.integer("SELECT count(*) FROM sqlite_schema") == 0;
}

void checkIsOurs(Database& database, const Schema& schema) {
    if (database.integer("PRAGMA application_id") != schema.applicationId()) {
        throw StoreError(StoreFault::foreign, "the database belongs to another program");
    }
    checkNotNewer(database, schema);
}

/// Another process may have done it since the caller looked, so everything is asked again.
void bringUpToDate(Database& database, const Schema& schema) {
    Transaction write(database, Transaction::Kind::write);
    if (isEmpty(database)) {
        createOwnTables(database, schema);
    } else {
        checkIsOurs(database, schema);
        migrate(database, schema, storedVersion(database));
    }
    for (const Schema::Type& type : schema.types()) {
        createTable(database, type.table);
    }
    database.execute("PRAGMA user_version = " + std::to_string(schema.version()));
    write.commit();
}

void compile(Database& database, const char* sql) {
    const Statement compiled = database.prepare(sql);
}

void compileQueries(Database& database, const Schema& schema) {
    compile(database, "SELECT store_id, revision, failed_commits FROM store_meta");
    compile(database, "SELECT name, text FROM store_note");
    compile(database, "SELECT type, row_key, id, revision FROM store_tombstone");
    for (const Schema::Type& type : schema.types()) {
        type.makeStorage(database)->checkTable();
    }
}

void checkTables(Database& database, const Schema& schema) {
    try {
        compileQueries(database, schema);
    } catch (const StoreError& error) {
        throw error.fault() == StoreFault::misuse ? StoreError(StoreFault::damaged, error.what())
                                                  : error;
    }
    if (database.integer("SELECT count(*) FROM store_meta") != 1) {
        throw StoreError(StoreFault::damaged, "the store's own row is missing");
    }
}

} // namespace

void checkNotNewer(Database& database, const Schema& schema) {
    const int version = storedVersion(database);
    if (version > schema.version()) {
        throw StoreError(StoreFault::newerSchema,
                         "the file has schema version " + std::to_string(version) +
                             ", this program knows " + std::to_string(schema.version()));
    }
}

void setUpSchema(Database& database, const Schema& schema) {
    if (!isEmpty(database)) {
        checkIsOurs(database, schema);
    }
    if (storedVersion(database) < schema.version()) {
        bringUpToDate(database, schema);
    }
    checkTables(database, schema);
}

} // namespace platform::store
