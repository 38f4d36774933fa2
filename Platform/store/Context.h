#pragma once

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/store/Query.h"
#include "Platform/store/Record.h"
#include "Platform/store/StoreError.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::store {

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
    ~Context();
    Context(const Context&) = delete;
    Context& operator=(const Context&) = delete;

    [[nodiscard]] const Clock& clock() const;
    [[nodiscard]] Calendar calendar() const;

    /// All records of type R that meet the filter, in the given order, with the unsaved changes of
    /// this context (inserted records included, deleted ones left out).
    template <class R>
    [[nodiscard]] std::vector<R*> fetch(const Filter<R>& filter = {}, const Sort<R>& sort = {});

    /// Like `fetch`, for records written after `revision` and all with unsaved changes.
    template <class R>
    [[nodiscard]] std::vector<R*> fetchChangedSince(Revision revision);

    /// The record with this key, or nothing when it is gone.
    template <class R>
    [[nodiscard]] R* find(RowKey key);

    /// Visits the values of all records that meet the filter, unsaved changes included, in
    /// unspecified order and without making record objects: for bulk reading.
    template <class R>
    void scan(const Filter<R>& filter,
              const std::function<void(RowKey, const typename R::Values&)>& visit);

    /// Sum of an integer field over the records that meet the filter, unsaved changes included.
    /// Throws `misuse` when it leaves 64 bits.
    template <class R, auto Member>
    [[nodiscard]] std::int64_t sum(const Filter<R>& filter = {});

    /// Takes ownership of a new record; it is visible to fetches from now on.
    template <class R>
    R& insert(std::unique_ptr<R> record);

    /// Deletes a record of this context. Deleting a deleted or detached record does nothing.
    void remove(RecordBase& record);

    template <class R>
    void removeAll();

    /// Makes all pending changes durable in one transaction, or throws and changes nothing: the
    /// pending changes are still pending, on disk everything is as before. Without pending changes
    /// it does nothing.
    void save();

    /// Discards every pending change: fields get their stored values back, inserted records are
    /// forgotten, deleted ones are back.
    void rollback() noexcept;

    [[nodiscard]] bool hasChanges() const;

    /// Takes in what others have committed since, reading only what changed, and tells the observers.
    /// Fields with unsaved changes keep them; a record deleted elsewhere that has unsaved changes
    /// stays, and a save writes it anew. Costs microseconds when nothing was committed.
    void refresh();

    /// The newest revision this context has taken in.
    [[nodiscard]] Revision revision() const;

    /// A small text kept beside the records under a name; part of the pending changes until saved.
    [[nodiscard]] std::optional<std::string> note(std::string_view name);
    void setNote(std::string_view name, std::string_view text);

    /// What one publication changed: keys of records of one type. Unsaved inserts are told by object.
    struct Changes {
        std::vector<RecordBase*> inserted;
        std::vector<RecordBase*> updated;
        std::vector<RecordBase*> removed;
        std::vector<RowKey> foreign; ///< rows written or deleted by others, not looked up yet
    };
};

} // namespace platform::store
