#pragma once

#include "Platform/store/FieldCodec.h"
#include "Platform/store/Query.h"
#include "Platform/store/RowSink.h"
#include "Platform/store/StoreError.h"
#include "Platform/store/TypeStorage.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <tuple>
#include <utility>
#include <vector>

namespace platform::store {

/// Reads a row as `TypeStorage::select` answers it into `values`.
template <class Values>
void readValues(const Statement& row, Values& values) {
    int column = 2;
    std::apply([&](const auto&... field) { (readField(row, column++, values.*field.member), ...); },
               RecordFields<Values>::fields);
}

[[nodiscard]] inline RowKey rowKey(const Statement& row) {
    return RowKey{row.integer(0)};
}
[[nodiscard]] inline Revision rowRevision(const Statement& row) {
    return Revision{row.integer(1)};
}

/// What a context keeps of record type R; see `TypeStorage`.
template <class R>
class TypedStorage final : public TypeStorage {
public:
    using Values = typename R::Values;
    using Visit = std::function<void(RowKey, const Values&)>;

    explicit TypedStorage(Database& database) : TypeStorage(database, describe<Values>()) {}

    std::vector<R*> fetch(const Filter<R>& filter, const Sort<R>& sort) {
        std::vector<R*> found = materialise(select(filter.conditions()), filter);
        if (!sort.isEmpty()) {
            std::stable_sort(found.begin(), found.end(), [&](const R* a, const R* b) {
                return sort.precedes(a->values(), b->values());
            });
        }
        return found;
    }

    std::vector<R*> fetchChangedSince(Revision revision) {
        return materialise(selectNewerThan(revision), {});
    }

    R* find(RowKey key) {
        if (RecordBase* record = known(key)) {
            return record->isAlive() ? static_cast<R*>(record) : nullptr;
        }
        Statement row = selectKey(key);
        return row.step() ? &materialise(row) : nullptr;
    }

    void scan(const Filter<R>& filter, const Visit& visit) {
        Statement rows = select(filter.conditions());
        const bool anyPending = hasChanges();
        Values values;
        while (rows.step()) {
            const RowKey key = rowKey(rows);
            const RecordBase* record = anyPending ? known(key) : nullptr;
            if (record == nullptr || !record->hasUnsavedChanges()) {
                readValues(rows, values);
                visit(key, values);
            }
        }
        forEachPending([&](RecordBase& record) {
            if (filter.matches(valuesOf(record))) {
                visit(record.key(), valuesOf(record));
            }
        });
    }

    template <auto Member>
    std::int64_t sum(const Filter<R>& filter) {
        if (!hasChanges()) {
            Statement row = selectSum(fieldIndex<Values, Member>(), filter.conditions());
            row.step();
            return row.integer(0);
        }
        std::int64_t total = 0;
        scan(filter, [&](RowKey, const Values& values) {
            if (__builtin_add_overflow(total, values.*Member, &total)) {
                throw StoreError(StoreFault::misuse, "the sum leaves 64 bits");
            }
        });
        return total;
    }

    R& insert(std::unique_ptr<R> record, RowKey key) {
        if (record->state() != RecordState::detached || record->key() != RowKey::none) {
            throw StoreError(StoreFault::misuse, "the record was inserted before");
        }
        R& inserted = static_cast<R&>(own(std::move(record), key, RecordState::inserted));
        markInserted(inserted);
        stage(inserted, key);
        return inserted;
    }

    void removeAll() override {
        for (R* record : fetch({}, {})) {
            remove(*record);
        }
    }

    void attach(RowSink<Values>& sink) { sinks_.push_back(&sink); }
    void detach(RowSink<Values>& sink) { std::erase(sinks_, &sink); }

    /// Visits all rows written or deleted after a revision and every pending change, until `visit`
    /// answers false; answers whether it never did.
    template <class VisitNewer>
    bool scanNewerThan(Revision revision, const VisitNewer& visit) {
        Statement rows = selectNewerThan(revision);
        Values values;
        bool goesOn = true;
        while (goesOn && rows.step()) {
            readValues(rows, values);
            goesOn = visit(rowKey(rows), &values);
        }
        Statement deletions = selectDeletions(revision);
        while (goesOn && deletions.step()) {
            goesOn = visit(RowKey{deletions.integer(0)}, nullptr);
        }
        for (const RecordBase* record : removed()) {
            goesOn = goesOn && visit(record->key(), nullptr);
        }
        forEachPending(
            [&](RecordBase& record) { goesOn = goesOn && visit(record.key(), &valuesOf(record)); });
        return goesOn;
    }

    /// Stages for one live query all rows written or deleted after a revision and every pending
    /// change.
    void stageNewerThan(Revision revision, RowSink<Values>& sink) {
        scanNewerThan(revision, [&](RowKey key, const Values* values) {
            sink.stage(key, key, values);
            return true;
        });
    }

private:
    static const Values& valuesOf(const RecordBase& record) {
        return static_cast<const R&>(record).values();
    }

    /// The record objects of the rows, leaving those to `filter` whose unsaved changes decide.
    std::vector<R*> materialise(Statement rows, const Filter<R>& filter) {
        std::vector<R*> found;
        while (rows.step()) {
            R& record = materialise(rows);
            if (!record.hasUnsavedChanges()) {
                found.push_back(&record);
            }
        }
        forEachPending([&](RecordBase& record) {
            if (filter.matches(valuesOf(record))) {
                found.push_back(static_cast<R*>(&record));
            }
        });
        return found;
    }

    R& materialise(const Statement& row) {
        RecordBase* record = known(rowKey(row));
        if (record == nullptr) {
            Values values;
            readValues(row, values);
            record = &own(std::make_unique<R>(std::move(values)), rowKey(row), RecordState::stored);
            record->revision_ = rowRevision(row);
        } else if (record->revision_ < rowRevision(row)) {
            absorb(static_cast<R&>(*record), row);
        }
        return static_cast<R&>(*record);
    }

    /// Takes newer stored values in; fields with unsaved changes keep theirs.
    void absorb(R& record, const Statement& row) {
        Values stored;
        readValues(row, stored);
        Values values = stored;
        std::size_t index = 0;
        const auto keepChange = [&](const auto& field) {
            if (record.changed_.test(index)) {
                values.*field.member = record.values_.*field.member;
                record.changed_.set(index, !sameValue(values.*field.member, stored.*field.member));
            }
            ++index;
        };
        std::apply([&](const auto&... field) { (keepChange(field), ...); },
                   RecordFields<Values>::fields);
        record.values_ = std::move(values);
        if (record.stored_) {
            *record.stored_ = std::move(stored);
        }
        record.revision_ = rowRevision(row);
        record.deletedElsewhere_ = false;
    }

    void takeInRow(const Statement& row) override {
        RecordBase* record = known(rowKey(row));
        if (record != nullptr) {
            if (record->revision_ < rowRevision(row)) {
                absorb(static_cast<R&>(*record), row);
            }
            stage(*record, record->key());
        } else if (!sinks_.empty()) {
            readValues(row, scratch_);
            stage(rowKey(row), rowKey(row), &scratch_);
        }
    }

    [[nodiscard]] bool hasObservers() const override { return !sinks_.empty(); }

    void stage(const RecordBase& record, RowKey former) override {
        stage(record.key(), former, record.isAlive() ? &valuesOf(record) : nullptr);
    }

    void stageRemoval(RowKey key) override { stage(key, key, nullptr); }

    void stage(RowKey key, RowKey former, const Values* values) {
        for (RowSink<Values>* sink : sinks_) {
            sink->stage(key, former, values);
        }
    }

    int bindFields(Statement& statement, int parameter, const RecordBase& record) override {
        const Values& values = valuesOf(record);
        std::apply(
            [&](const auto&... field) {
                (bindField(statement, parameter++, values.*field.member), ...);
            },
            RecordFields<Values>::fields);
        return parameter;
    }

    void restore(RecordBase& record) override {
        auto& typed = static_cast<R&>(record);
        if (typed.stored_) {
            typed.values_ = std::move(*typed.stored_);
            typed.stored_.reset();
        }
    }

    void forgetStored(RecordBase& record) override { static_cast<R&>(record).stored_.reset(); }

    std::vector<RowSink<Values>*> sinks_;
    Values scratch_;
};

} // namespace platform::store
