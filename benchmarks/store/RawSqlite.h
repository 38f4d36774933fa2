#pragma once

#include "benchmarks/store/Change.h"

#include <sqlite3.h>

#include <filesystem>

namespace platform::store::benchmarks {

/// The bare library doing the same work, as the limit to compare with.
class RawSqlite {
public:
    explicit RawSqlite(const std::filesystem::path& file) {
        sqlite3_open_v2(file.c_str(), &database_,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
        run("PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL; PRAGMA cache_size = -65536");
    }
    ~RawSqlite() { sqlite3_close_v2(database_); }
    RawSqlite(const RawSqlite&) = delete;
    RawSqlite& operator=(const RawSqlite&) = delete;

    void run(const char* sql) { sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); }

    [[nodiscard]] sqlite3_stmt* prepare(const char* sql) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(database_, sql, -1, &statement, nullptr);
        return statement;
    }

    /// A table with the columns and the index that a store's has.
    void createTable() {
        run("CREATE TABLE change (row_key INTEGER PRIMARY KEY, revision INTEGER, id BLOB, date "
            "REAL,"
            " minutes INTEGER, note TEXT, kind TEXT, created_at REAL, modified_at REAL);"
            "CREATE INDEX change_revision ON change (revision)");
    }

    [[nodiscard]] sqlite3_stmt* prepareInsert() {
        return prepare("INSERT INTO change (id, date, minutes, note, kind, created_at, modified_at,"
                       " revision) VALUES (?, ?, ?, ?, ?, ?, ?, ?)");
    }

    static void insert(sqlite3_stmt* statement, const ChangeValues& values) {
        sqlite3_bind_blob(statement, 1, values.id.bytes().data(), 16, SQLITE_STATIC);
        sqlite3_bind_double(statement, 2, values.date.secondsSince1970);
        sqlite3_bind_int64(statement, 3, values.minutes);
        bindText(statement, 4, values.note);
        bindText(statement, 5, values.kind);
        sqlite3_bind_double(statement, 6, values.createdAt.secondsSince1970);
        sqlite3_bind_double(statement, 7, values.modifiedAt.secondsSince1970);
        sqlite3_bind_int64(statement, 8, 1);
        sqlite3_step(statement);
        sqlite3_reset(statement);
    }

    /// Inserts so many rows and commits them.
    void insertMany(std::int64_t count) {
        sqlite3_stmt* const statement = prepareInsert();
        run("BEGIN IMMEDIATE");
        for (std::int64_t i = 0; i < count; ++i) {
            insert(statement, madeUp(i));
        }
        run("COMMIT");
        sqlite3_finalize(statement);
    }

    /// Gives the first rows another time and the next revision, and commits that.
    void updateMany(std::int64_t count) {
        sqlite3_stmt* const statement =
            prepare("UPDATE change SET modified_at = ?, revision = 2 WHERE row_key = ?");
        run("BEGIN IMMEDIATE");
        for (std::int64_t key = 1; key <= count; ++key) {
            sqlite3_bind_double(statement, 1, static_cast<double>(key));
            sqlite3_bind_int64(statement, 2, key);
            sqlite3_step(statement);
            sqlite3_reset(statement);
        }
        run("COMMIT");
        sqlite3_finalize(statement);
    }

private:
    static void bindText(sqlite3_stmt* statement, int parameter, const std::string& text) {
        sqlite3_bind_text(statement, parameter, text.data(), static_cast<int>(text.size()),
                          SQLITE_STATIC);
    }

    sqlite3* database_ = nullptr;
};

} // namespace platform::store::benchmarks
