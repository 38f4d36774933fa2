#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

struct sqlite3_stmt;

namespace platform::store {

class Database;

/// A prepared SQL statement on loan from its database's pool, to which it returns reset and
/// unbound. Parameters count from 1, columns from 0. Texts and blobs that were bound must stay
/// valid until the statement is reset or gone; those read are valid until the next step. Failures
/// throw `StoreError`.
class Statement {
public:
    Statement(Database& database, std::string_view poolKey, sqlite3_stmt* statement)
        : database_(&database), poolKey_(poolKey), statement_(statement) {}
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&&) = delete;

    void bindNull(int parameter);
    void bindInteger(int parameter, std::int64_t value);
    void bindReal(int parameter, double value);
    void bindText(int parameter, std::string_view value);
    void bindBlob(int parameter, std::span<const std::uint8_t> value);

    /// Moves to the next row of the result; false when there is none.
    bool step();
    /// Runs to the end and resets, for the next set of parameters.
    void run();
    void reset();

    [[nodiscard]] bool isNull(int column) const;
    [[nodiscard]] std::int64_t integer(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] std::string_view text(int column) const;
    [[nodiscard]] std::span<const std::uint8_t> blob(int column) const;

private:
    void check(int result) const;

    Database* database_;
    std::string_view poolKey_;
    sqlite3_stmt* statement_;
};

} // namespace platform::store
