#pragma once

#include "Platform/store/Record.h"
#include "Platform/store/TableDescription.h"
#include "Platform/store/TypedStorage.h"

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

namespace platform::store {

/// The record types of a store, its application id and schema version, and the steps that move
/// older files on. A value; built once and handed to `Store::open`.
///
///     static const Schema schema = Schema{0x12345678, 2}
///                                      .add<Reminder>()
///                                      .addMigration(1, {"ALTER TABLE reminder ADD COLUMN …"});
class Schema {
public:
    /// `applicationId` marks the file as ours (SQLite's application_id) and is not zero; `version`
    /// counts from 1.
    Schema(std::int32_t applicationId, int version)
        : applicationId_(applicationId), version_(version) {}

    /// Adds a record type. Its table is created when a file does not have it.
    template <class R>
    Schema& add() {
        static_assert(std::is_constructible_v<R, typename R::Values>,
                      "the store makes records from their values");
        types_.push_back({describe<typename R::Values>(), [](Database& database) {
                              return std::unique_ptr<TypeStorage>(
                                  std::make_unique<TypedStorage<R>>(database));
                          }});
        return *this;
    }

    /// SQL statements that move a file of version `from` to `from + 1`; run in order, all versions
    /// in one transaction. Every version below the present one needs a migration to be opened.
    /// Columns are declared as `TableDescription` says.
    Schema& addMigration(int from, std::vector<std::string> statements) {
        migrations_.push_back({from, std::move(statements)});
        return *this;
    }

    struct Type {
        TableDescription table;
        std::unique_ptr<TypeStorage> (*makeStorage)(Database& database);
    };
    struct Migration {
        int from;
        std::vector<std::string> statements;
    };

    [[nodiscard]] std::int32_t applicationId() const { return applicationId_; }
    [[nodiscard]] int version() const { return version_; }
    [[nodiscard]] const std::vector<Type>& types() const { return types_; }
    /// The steps from a version on to the next, or null.
    [[nodiscard]] const Migration* migrationFrom(int version) const;

private:
    std::int32_t applicationId_;
    int version_;
    std::vector<Type> types_;
    std::vector<Migration> migrations_;
};

} // namespace platform::store
