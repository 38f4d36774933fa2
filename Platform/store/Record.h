#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"

#include <bitset>
#include <cstdint>
#include <memory>

namespace platform::store {

class Context;

/// A record's identity in one store: never reused, the same in every context and process. Zero means
/// the record has not been saved yet.
enum class RowKey : std::int64_t { none = 0 };

/// The number of a save. Every save of a store takes the next one; rows carry the revision that last
/// wrote them.
enum class Revision : std::int64_t { none = 0 };

/// What the context knows of a record.
enum class RecordState {
    detached, ///< in no context: new, or forgotten by a rollback of its insertion, or deleted for good
    inserted, ///< belongs to a context, not saved yet
    stored,   ///< belongs to a context and the store, perhaps with unsaved field changes
    removed,  ///< deleted, the deletion not saved yet
};

/// The part of a record that does not depend on its type. Two records are the same only when they
/// are the same object; a context hands out one object per row.
///
/// Confined to its context's thread. An object handed out by a context stays valid until the context
/// is destroyed, also after the record was deleted or its insertion rolled back.
class RecordBase {
public:
    virtual ~RecordBase();
    RecordBase(const RecordBase&) = delete;
    RecordBase& operator=(const RecordBase&) = delete;

    [[nodiscard]] RecordState state() const { return state_; }
    [[nodiscard]] RowKey key() const { return key_; }
    /// True while the record is in a context and not deleted.
    [[nodiscard]] bool isAlive() const {
        return state_ == RecordState::inserted || state_ == RecordState::stored;
    }
    [[nodiscard]] bool hasUnsavedChanges() const;

protected:
    RecordBase() = default;
    /// Tells the context, once per unsaved change, that a field is about to differ from what is stored.
    void noteChange();

    static constexpr std::size_t maximumFieldCount = 32;
    std::bitset<maximumFieldCount> changedFields_;

private:
    friend class Context;
    template <class> friend class TypedStorage;

    Context* context_ = nullptr;
    RowKey key_ = RowKey::none;
    Revision revision_ = Revision::none;
    RecordState state_ = RecordState::detached;
};

/// Base of every record type. `Values` is a plain struct with the record's fields, described to the
/// store by a `RecordFields<Values>` specialisation. Derived types publish named getters and setters:
///
///     class Reminder final : public platform::store::Record<ReminderValues> {
///     public:
///         std::int64_t minutes() const { return values().minutes; }
///         void setMinutes(std::int64_t v) { assign<&ReminderValues::minutes>(v); }
///     };
///
/// Assigning a value equal to the present one is no change.
template <class V>
class Record : public RecordBase {
public:
    using Values = V;

    [[nodiscard]] const Values& values() const { return values_; }

protected:
    Record() = default;
    explicit Record(Values values) : values_(std::move(values)) {}

    template <auto Member, class T>
    void assign(T&& value) {
        if (values_.*Member == value) {
            return;
        }
        if (!stored_) {
            stored_ = std::make_unique<Values>(values_);
        }
        noteChange();
        changedFields_.set(fieldIndex<Values, Member>());
        values_.*Member = std::forward<T>(value);
    }

private:
    friend class Context;
    template <class> friend class TypedStorage;

    Values values_;
    std::unique_ptr<Values> stored_; ///< values as in the store, while any field differs unsaved
};

} // namespace platform::store
