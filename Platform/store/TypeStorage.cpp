#include "Platform/store/TypeStorage.h"

#include "Platform/store/ConditionSql.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace platform::store {

namespace {

// Beginning and ending a statement costs SQLite more than writing a row does, so where there are
// many rows they share statements.
constexpr std::size_t rowsAtOnce = 64;

constexpr auto hasUnsaved = [](const RecordBase* record) { return record->hasUnsavedChanges(); };

std::string joined(const std::vector<Column>& columns) {
    std::string names;
    for (const Column& column : columns) {
        names += names.empty() ? "" : ", ";
        names += column.name;
    }
    return names;
}

/// "part, part, part"
std::string repeated(const std::string& part, std::size_t count) {
    std::string list;
    for (std::size_t i = 0; i < count; ++i) {
        list += i == 0 ? part : ", " + part;
    }
    return list;
}

std::int64_t number(RowKey key) {
    return static_cast<std::int64_t>(key);
}
std::int64_t number(Revision revision) {
    return static_cast<std::int64_t>(revision);
}

RowKey after(RowKey key) {
    return RowKey{number(key) + 1};
}

} // namespace

TypeStorage::TypeStorage(Database& database, TableDescription table)
    : database_(database),
      table_(std::move(table)),
      name_(table_.name),
      columns_(joined(table_.columns)) {
}

TypeStorage::~TypeStorage() = default;

void TypeStorage::checkTable() const {
    const Statement compiled = selectKey(RowKey::none);
}

bool TypeStorage::hasChanges() const {
    return std::ranges::any_of(inserted_, hasUnsaved) ||
           std::ranges::any_of(changed_, hasUnsaved) || std::ranges::any_of(removed_, hasUnsaved);
}

RecordBase* TypeStorage::known(RowKey key) const {
    RecordBase* record = identities_.find(key);
    return record == nullptr || record->state() == RecordState::detached ? nullptr : record;
}

Statement TypeStorage::select(const std::vector<Condition>& conditions) const {
    Statement rows = database_.prepare("SELECT row_key, revision, " + columns_ + " FROM " + name_ +
                                       whereClause(table_, conditions));
    bindConditions(rows, conditions);
    return rows;
}

Statement TypeStorage::selectNewerThan(Revision revision) const {
    Statement rows = database_.prepare("SELECT row_key, revision, " + columns_ + " FROM " + name_ +
                                       " WHERE revision > ?");
    rows.bindInteger(1, number(revision));
    return rows;
}

Statement TypeStorage::selectKey(RowKey key) const {
    Statement row = database_.prepare("SELECT row_key, revision, " + columns_ + " FROM " + name_ +
                                      " WHERE row_key = ?");
    row.bindInteger(1, number(key));
    return row;
}

Statement TypeStorage::selectSum(std::size_t field,
                                 const std::vector<Condition>& conditions) const {
    Statement row = database_.prepare("SELECT sum(" + std::string(table_.columns[field].name) +
                                      ") FROM " + name_ + whereClause(table_, conditions));
    bindConditions(row, conditions);
    return row;
}

Statement TypeStorage::selectDeletions(Revision after) const {
    Statement keys =
        database_.prepare("SELECT row_key FROM store_tombstone WHERE type = ? AND revision > ?");
    keys.bindText(1, table_.name);
    keys.bindInteger(2, number(after));
    return keys;
}

RecordBase& TypeStorage::own(std::unique_ptr<RecordBase> record, RowKey key, RecordState state) {
    RecordBase& owned = *owned_.emplace_back(std::move(record));
    identities_.set(key, owned);
    owned.storage_ = this;
    owned.key_ = key;
    owned.state_ = state;
    return owned;
}

void TypeStorage::markChanged(RecordBase& record) {
    changed_.push_back(&record);
    record.listedAsChanged_ = true;
}

void TypeStorage::detach(RecordBase& record) {
    forgetStored(record);
    record.changed_.reset();
    record.state_ = RecordState::detached;
}

void TypeStorage::remove(RecordBase& record) {
    if (!record.isAlive()) {
        return;
    }
    if (record.state_ == RecordState::inserted) {
        record.state_ = RecordState::detached;
    } else {
        record.state_ = RecordState::removed;
        removed_.push_back(&record);
    }
    stageRemoval(record.key_);
}

void TypeStorage::write(Revision revision) {
    for (const RecordBase* record : removed_) {
        deleteRow(*record, revision);
    }
    writeChanged(revision);
    writeInserted(revision);
}

void TypeStorage::deleteRow(const RecordBase& record, Revision revision) {
    Statement bury =
        database_.prepare("INSERT OR REPLACE INTO store_tombstone "
                          "(type, row_key, id, revision) SELECT ?, row_key, id, ? FROM " +
                          name_ + " WHERE row_key = ?");
    bury.bindText(1, table_.name);
    bury.bindInteger(2, number(revision));
    bury.bindInteger(3, number(record.key_));
    bury.run();
    Statement remove = database_.prepare("DELETE FROM " + name_ + " WHERE row_key = ?");
    remove.bindInteger(1, number(record.key_));
    remove.run();
}

/// Fields that only others of the records have changed are written as they are stored.
void TypeStorage::writeChanged(Revision revision) {
    std::vector<RecordBase*> records;
    FieldMask fields;
    for (RecordBase* record : changed_) {
        if (record->isAlive() && record->hasUnsavedChanges()) {
            records.push_back(record);
            fields |= record->changed_;
            if (record->deletedElsewhere_) {
                exhume(record->key_);
            }
        }
    }
    writeRows(records, takingOver(fields), revision,
              [](const RecordBase& record) { return record.key_; });
}

void TypeStorage::writeInserted(Revision revision) {
    std::erase_if(inserted_, [](const RecordBase* record) { return !record->isAlive(); });
    if (!inserted_.empty()) {
        const RowKey last = lastKeyEver();
        if (number(last) > std::numeric_limits<std::int64_t>::max() - std::ssize(inserted_)) {
            throw StoreError(StoreFault::damaged, name_ + " has no keys left");
        }
        firstNewKey_ = after(last);
        writeRows(inserted_, "", revision, [key = firstNewKey_](const RecordBase&) mutable {
            return std::exchange(key, after(key));
        });
    }
}

template <class KeyOf>
void TypeStorage::writeRows(std::span<RecordBase* const> records, const std::string& onConflict,
                            Revision revision, KeyOf keyOf) {
    while (!records.empty()) {
        const std::size_t rows = records.size() < rowsAtOnce ? 1 : rowsAtOnce;
        Statement write = database_.prepare(insertSql(rows).append(onConflict));
        for (; records.size() >= rows && !records.empty(); records = records.subspan(rows)) {
            int parameter = 1;
            for (const RecordBase* record : records.first(rows)) {
                parameter = bindFields(write, parameter, *record);
                write.bindInteger(parameter++, number(revision));
                write.bindInteger(parameter++, number(keyOf(*record)));
            }
            write.run();
        }
    }
}

std::string TypeStorage::insertSql(std::size_t rows) const {
    const std::string row = "(" + repeated("?", table_.columns.size() + 2) + ")";
    return "INSERT INTO " + name_ + " (" + columns_ + ", revision, row_key) VALUES " +
           repeated(row, rows);
}

/// What makes an insertion give a row that is there its changed fields.
std::string TypeStorage::takingOver(FieldMask fields) const {
    std::string clause = " ON CONFLICT (row_key) DO UPDATE SET revision = excluded.revision";
    for (std::size_t field = 0; field < table_.columns.size(); ++field) {
        if (fields.test(field)) {
            const std::string name(table_.columns[field].name);
            clause.append(", ").append(name).append(" = excluded.").append(name);
        }
    }
    return clause;
}

/// The greatest key that a row of the table has or had.
RowKey TypeStorage::lastKeyEver() const {
    return RowKey{database_.integer(
        "SELECT max(ifnull((SELECT max(row_key) FROM " + name_ +
        "), 0), ifnull((SELECT seq FROM sqlite_sequence WHERE name = '" + name_ + "'), 0))")};
}

void TypeStorage::exhume(RowKey key) {
    Statement exhume =
        database_.prepare("DELETE FROM store_tombstone WHERE type = ? AND row_key = ?");
    exhume.bindText(1, table_.name);
    exhume.bindInteger(2, number(key));
    exhume.run();
}

void TypeStorage::settle(Revision revision) {
    for (RecordBase* record : std::exchange(removed_, {})) {
        detach(*record);
    }
    settleChanged(revision);
    settleInserted(revision);
}

void TypeStorage::settleChanged(Revision revision) {
    for (RecordBase* record : std::exchange(changed_, {})) {
        record->listedAsChanged_ = false;
        forgetStored(*record);
        if (!record->isAlive()) {
            continue;
        }
        if (record->changed_.any()) {
            record->changed_.reset();
            record->revision_ = revision;
            record->deletedElsewhere_ = false;
            stage(*record, record->key_);
        } else if (record->deletedElsewhere_) {
            detach(*record);
            stageRemoval(record->key_);
        }
    }
}

void TypeStorage::settleInserted(Revision revision) {
    RowKey key = firstNewKey_;
    for (RecordBase* record : std::exchange(inserted_, {})) {
        const RowKey provisional = std::exchange(record->key_, std::exchange(key, after(key)));
        record->state_ = RecordState::stored;
        record->revision_ = revision;
        identities_.set(record->key_, *record);
        stage(*record, provisional);
    }
}

void TypeStorage::rollback() {
    for (RecordBase* record : std::exchange(inserted_, {})) {
        detach(*record);
        stageRemoval(record->key_);
    }
    const std::vector<RecordBase*> removed = std::exchange(removed_, {});
    for (RecordBase* record : removed) {
        record->state_ = RecordState::stored;
    }
    const std::vector<RecordBase*> changed = std::exchange(changed_, {});
    for (RecordBase* record : changed) {
        record->listedAsChanged_ = false;
        record->changed_.reset();
        restore(*record);
    }
    for (const auto* records : {&removed, &changed}) {
        for (RecordBase* record : *records) {
            if (record->deletedElsewhere_) {
                detach(*record);
            }
            stage(*record, record->key_);
        }
    }
}

void TypeStorage::takeIn(Revision after) {
    if (identities_.isEmpty() && !hasObservers()) {
        return;
    }
    Statement rows = selectNewerThan(after);
    while (rows.step()) {
        takeInRow(rows);
    }
    Statement deletions = selectDeletions(after);
    while (deletions.step()) {
        takeInDeletion(RowKey{deletions.integer(0)});
    }
}

void TypeStorage::takeInDeletion(RowKey key) {
    RecordBase* record = known(key);
    if (record != nullptr && record->hasUnsavedChanges()) {
        record->deletedElsewhere_ = true;
        return;
    }
    if (record != nullptr) {
        detach(*record);
    }
    stageRemoval(key);
}

} // namespace platform::store
