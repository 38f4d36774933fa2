#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/store/Query.h"
#include "Platform/store/Record.h"
#include "Platform/store/StoreError.h"
#include "Platform/store/TypedStorage.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::store {

class LiveQueryBase;
class Store;

/// What operations that read the present time or the user's calendar ask. Both outlive the context.
struct ContextEnvironment {
    const Clock& clock;
    const CalendarSource& calendars;
};

/// A unit of work on a store: its own view of the records, with unsaved changes on top.
///
/// A context belongs to the thread that created it, and so do its records. Each has a database
/// connection of its own; any number of contexts, in any number of processes, may share a store.
/// Failures are thrown as `StoreError`; none leaves a change half made.
class Context {
public:
    /// Live queries on the context must be gone by then.
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    [[nodiscard]] const Clock& clock() const;
    [[nodiscard]] Calendar calendar() const;
    [[nodiscard]] Store& store() const;

    /// All records of type R that meet the filter, in the given order, with the unsaved changes of
    /// this context (inserted records included, deleted ones left out).
    template <class R>
    [[nodiscard]] std::vector<R*> fetch(const Filter<R>& filter = {}, const Sort<R>& sort = {}) {
        return storage<R>().fetch(filter, sort);
    }

    /// Like `fetch`, for records written after `revision` and all with unsaved changes.
    template <class R>
    [[nodiscard]] std::vector<R*> fetchChangedSince(Revision revision) {
        return storage<R>().fetchChangedSince(revision);
    }

    /// Visits, by value, all records written after `revision` and, with null, those deleted since,
    /// unsaved changes included; a record may be visited again with what is true of it now. Ends
    /// when the visitor answers false; answers whether it never did. Otherwise as `scan`.
    template <class R>
    bool scanChangedSince(Revision revision,
                          const std::function<bool(RowKey, const typename R::Values*)>& visit) {
        return storage<R>().scanNewerThan(revision, visit);
    }

    /// The record with this key, or nothing when it is gone. The provisional key of a record keeps
    /// finding it after it was saved.
    template <class R>
    [[nodiscard]] R* find(RowKey key) {
        return storage<R>().find(key);
    }

    /// Visits the values of all records that meet the filter, unsaved changes included, in
    /// unspecified order and without making record objects: for bulk reading. The values are valid
    /// during the visit only, and the visitor must not change records.
    template <class R>
    void scan(const Filter<R>& filter,
              const std::function<void(RowKey, const typename R::Values&)>& visit) {
        storage<R>().scan(filter, visit);
    }

    /// Sum of an integer field over the records that meet the filter, unsaved changes included.
    /// Throws `misuse` when it leaves 64 bits, be it on the way.
    template <class R, auto Member>
    [[nodiscard]] std::int64_t sum(const Filter<R>& filter = {}) {
        return storage<R>().template sum<Member>(filter);
    }

    /// Takes ownership of a new record; it is visible to fetches from now on.
    template <class R>
    R& insert(std::unique_ptr<R> record) {
        R& inserted = storage<R>().insert(std::move(record), nextProvisionalKey());
        publish();
        return inserted;
    }

    /// Deletes a record of this context. Deleting a deleted or detached record does nothing.
    void remove(RecordBase& record);

    /// Deletes every record of the type that a fetch would answer now.
    template <class R>
    void removeAll() {
        storage<R>().removeAll();
        publish();
    }

    /// Makes all pending changes durable in one transaction, or throws and changes nothing: the
    /// pending changes are still pending, on disk everything is as before. Without pending changes
    /// it does nothing. Takes in what others have committed since, as `refresh` does.
    void save();

    /// Saves what `prepare` changes besides what is pending, all in one transaction, or nothing.
    /// `prepare` runs inside it: it sees what all others have committed, and nobody commits before
    /// it does. So it can decide by what is there, which includes not to change anything. It must
    /// neither save nor refresh, and observers wait until it is done. What it throws is passed on;
    /// its changes are then pending. Throws as `save` does.
    void save(const std::function<void()>& prepare);

    /// Discards every pending change: fields get their stored values back, inserted records are
    /// forgotten, deleted ones are back. Touches no file.
    void rollback() noexcept;

    [[nodiscard]] bool hasChanges() const;

    /// Takes in what others have committed since, reading only what changed, and tells the
    /// observers. Fields with unsaved changes keep them; a record deleted elsewhere that has
    /// unsaved changes stays, and a save writes it anew. Costs microseconds when nothing was
    /// committed.
    void refresh();

    /// The newest revision this context has taken in.
    [[nodiscard]] Revision revision() const;

    /// A small text kept beside the records under a name; part of the pending changes until saved.
    [[nodiscard]] std::optional<std::string> note(std::string_view name);
    void setNote(std::string_view name, std::string_view text);

private:
    friend class Store;
    template <class, class>
    friend class LiveQuery;
    class Impl;

    Context(std::shared_ptr<Store> store, ContextEnvironment environment);

    template <class R>
    TypedStorage<R>& storage() {
        return static_cast<TypedStorage<R>&>(storage(RecordFields<typename R::Values>::table));
    }
    [[nodiscard]] TypeStorage& storage(std::string_view table);
    [[nodiscard]] RowKey nextProvisionalKey();
    void attach(LiveQueryBase& query);
    void detach(LiveQueryBase& query);
    /// Brings the live queries up to date with what was staged and tells their observers. Inside an
    /// observer it only notes that there is more to publish.
    void publish() noexcept;

    std::unique_ptr<Impl> impl_;
};

} // namespace platform::store
