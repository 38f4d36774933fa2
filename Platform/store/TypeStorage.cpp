#include "Platform/store/TypeStorage.h"

#include "Platform/store/ConditionSql.h"

#include <algorithm>
#include <utility>

namespace platform::store {

namespace {

constexpr auto hasUnsaved = [](const RecordBase* record) { return record->hasUnsavedChanges(); };

std::string joined(const std::vector<Column>& columns) {
    std::string names;
    for (const Column& column : columns) {
        names += names.empty() ? "" : ", ";
        names += column.name;
    }
    return names;
}

std::string placeholders(std::size_t count) {
    std::string marks;
    for (std::size_t i = 0; i < count; ++i) {
        marks += i == 0 ? "?" : ", ?";
    }
    return marks;
}

std::int64_t number(RowKey key) {
    return static_cast<std::int64_t>(key);
}
std::int64_t number(Revision revision) {
    return static_cast<std::int64_t>(revision);
}

} // namespace

TypeStorage::TypeStorage(Database& database, TableDescription table)
    : database_(database),
      table_(std::move(table)),
      name_(table_.name),
      columns_(joined(table_.columns)),
      insertSql_("INSERT INTO " + name_ + " (" + columns_ + ", revision, row_key) VALUES (" +
                 placeholders(table_.columns.size() + 2) + ")") {
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
    const auto entry = identities_.find(key);
    return entry == identities_.end() || entry->second->state() == RecordState::detached
               ? nullptr
               : entry->second;
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
    identities_[key] = &owned;
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
    for (const RecordBase* record : changed_) {
        if (record->isAlive() && record->hasUnsavedChanges()) {
            updateRow(*record, revision);
        }
    }
    newKeys_.clear();
    std::erase_if(inserted_, [](const RecordBase* record) { return !record->isAlive(); });
    Statement insert = database_.prepare(insertSql_);
    for (const RecordBase* record : inserted_) {
        insertRow(insert, *record, revision);
        newKeys_.push_back(RowKey{database_.lastInsertKey()});
    }
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

void TypeStorage::updateRow(const RecordBase& record, Revision revision) {
    std::string sql = "UPDATE " + name_ + " SET ";
    for (std::size_t field = 0; field < table_.columns.size(); ++field) {
        if (record.changed_.test(field)) {
            sql += std::string(table_.columns[field].name) + " = ?, ";
        }
    }
    Statement update = database_.prepare(sql + "revision = ? WHERE row_key = ?");
    bindFields(update, record, record.changed_);
    const auto fields = static_cast<int>(record.changed_.count());
    update.bindInteger(fields + 1, number(revision));
    update.bindInteger(fields + 2, number(record.key_));
    update.run();
    if (database_.changedRows() == 0) {
        writeAnew(record, revision);
    }
}

void TypeStorage::writeAnew(const RecordBase& record, Revision revision) {
    Statement exhume =
        database_.prepare("DELETE FROM store_tombstone WHERE type = ? AND row_key = ?");
    exhume.bindText(1, table_.name);
    exhume.bindInteger(2, number(record.key_));
    exhume.run();
    Statement insert = database_.prepare(insertSql_);
    insert.bindInteger(static_cast<int>(table_.columns.size() + 2), number(record.key_));
    insertRow(insert, record, revision);
}

void TypeStorage::insertRow(Statement& insert, const RecordBase& record, Revision revision) {
    bindFields(insert, record, FieldMask{}.set());
    insert.bindInteger(static_cast<int>(table_.columns.size() + 1), number(revision));
    insert.run();
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
    const std::vector<RecordBase*> inserted = std::exchange(inserted_, {});
    identities_.reserve(identities_.size() + inserted.size());
    for (std::size_t i = 0; i < inserted.size(); ++i) {
        RecordBase& record = *inserted[i];
        const RowKey provisional = record.key_;
        record.key_ = newKeys_[i];
        record.state_ = RecordState::stored;
        record.revision_ = revision;
        identities_[record.key_] = &record;
        stage(record, provisional);
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
    if (identities_.empty() && !hasObservers()) {
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
