#pragma once

#include "Platform/store/Database.h"
#include "Platform/store/FieldValue.h"
#include "Platform/store/IdentityMap.h"
#include "Platform/store/Record.h"
#include "Platform/store/TableDescription.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace platform::store {

/// What a context keeps of one record type: the identity map, the pending changes, and the way of
/// both to and from the type's table. The part that does not depend on the type.
class TypeStorage {
public:
    virtual ~TypeStorage();
    TypeStorage(const TypeStorage&) = delete;
    TypeStorage& operator=(const TypeStorage&) = delete;

    [[nodiscard]] const TableDescription& table() const { return table_; }
    [[nodiscard]] bool hasChanges() const;

    /// Throws when the table does not have the columns.
    void checkTable() const;

    [[nodiscard]] bool owns(const RecordBase& record) const { return record.storage_ == this; }
    void remove(RecordBase& record);
    virtual void removeAll() = 0;

    /// Writes the pending changes; the caller has a transaction open.
    void write(Revision revision);
    /// What was written is durable: records take their keys, and the live queries' rows are staged.
    void settle(Revision revision);
    void rollback();

    /// Takes in the rows written and deleted by others after a revision.
    void takeIn(Revision after);

protected:
    using FieldMask = RecordBase::FieldMask;

    TypeStorage(Database& database, TableDescription table);

    [[nodiscard]] Database& database() const { return database_; }
    [[nodiscard]] RecordBase* known(RowKey key) const;
    /// The stored rows that meet the conditions: key, revision, fields. The conditions must outlive
    /// the statement.
    [[nodiscard]] Statement select(const std::vector<Condition>& conditions) const;
    [[nodiscard]] Statement selectNewerThan(Revision revision) const;
    [[nodiscard]] Statement selectKey(RowKey key) const;
    [[nodiscard]] Statement selectSum(std::size_t field,
                                      const std::vector<Condition>& conditions) const;
    /// Keys of the rows deleted after a revision.
    [[nodiscard]] Statement selectDeletions(Revision after) const;

    RecordBase& own(std::unique_ptr<RecordBase> record, RowKey key, RecordState state);
    void markInserted(RecordBase& record) { inserted_.push_back(&record); }
    /// Records that were inserted or changed, among them some that are not any more.
    template <class Visit>
    void forEachPending(Visit visit) const {
        for (const auto* records : {&inserted_, &changed_}) {
            for (RecordBase* record : *records) {
                if (record->isAlive() && record->hasUnsavedChanges()) {
                    visit(*record);
                }
            }
        }
    }
    [[nodiscard]] const std::vector<RecordBase*>& removed() const { return removed_; }

    virtual void takeInRow(const Statement& row) = 0;
    [[nodiscard]] virtual bool hasObservers() const = 0;
    /// Tells live queries how a record stands now; `former` is the key they knew it by.
    virtual void stage(const RecordBase& record, RowKey former) = 0;
    virtual void stageRemoval(RowKey key) = 0;
    /// Binds all fields from a parameter on; answers the parameter after them.
    virtual int bindFields(Statement& statement, int parameter, const RecordBase& record) = 0;
    /// Gives the record its stored values back, if any were kept.
    virtual void restore(RecordBase& record) = 0;
    /// Forgets the stored values that were kept.
    virtual void forgetStored(RecordBase& record) = 0;

private:
    friend class RecordBase;

    void markChanged(RecordBase& record);
    void takeInDeletion(RowKey key);
    void detach(RecordBase& record);
    void deleteRow(const RecordBase& record, Revision revision);
    void writeChanged(Revision revision);
    void writeInserted(Revision revision);
    template <class KeyOf>
    void writeRows(std::span<RecordBase* const> records, const std::string& onConflict,
                   Revision revision, KeyOf keyOf);
    [[nodiscard]] std::string insertSql(std::size_t rows) const;
    [[nodiscard]] std::string takingOver(FieldMask fields) const;
    [[nodiscard]] RowKey lastKeyEver() const;
    void exhume(RowKey key);
    void settleInserted(Revision revision);
    void settleChanged(Revision revision);

    Database& database_;
    TableDescription table_;
    std::string name_;
    std::string columns_; ///< comma-separated names of the fields' columns
    IdentityMap identities_;
    std::vector<std::unique_ptr<RecordBase>> owned_;
    std::vector<RecordBase*> inserted_;
    std::vector<RecordBase*> changed_;
    std::vector<RecordBase*> removed_;
    RowKey firstNewKey_ = RowKey::none; ///< of the inserted records, while they are being saved
};

} // namespace platform::store
