#pragma once

#include "Platform/store/RecordFields.h"
#include "Platform/store/RowKey.h"

#include <bitset>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

namespace platform::store {

class TypeStorage;

/// What the context knows of a record.
enum class RecordState : std::uint8_t {
    detached, ///< in no context: new, or forgotten by a rollback of its insertion, or deleted for
              ///< good
    inserted, ///< belongs to a context, not saved yet
    stored,   ///< belongs to a context and the store, perhaps with unsaved field changes
    removed,  ///< deleted, the deletion not saved yet
};

/// The part of a record that does not depend on its type. Two records are the same only when they
/// are the same object; a context hands out one object per row.
///
/// Confined to its context's thread. An object handed out by a context stays valid until the
/// context is destroyed, also after the record was deleted or its insertion rolled back.
class RecordBase {
public:
    virtual ~RecordBase();
    RecordBase(const RecordBase&) = delete;
    RecordBase& operator=(const RecordBase&) = delete;

    [[nodiscard]] RecordState state() const { return state_; }
    /// `RowKey::none` before the record was inserted into a context, provisional until it was
    /// saved.
    [[nodiscard]] RowKey key() const { return key_; }
    /// The save that last wrote the record, as far as the context has seen.
    [[nodiscard]] Revision revision() const { return revision_; }
    /// True while the record is in a context and not deleted.
    [[nodiscard]] bool isAlive() const {
        return state_ == RecordState::inserted || state_ == RecordState::stored;
    }
    [[nodiscard]] bool hasUnsavedChanges() const {
        return state_ == RecordState::inserted || state_ == RecordState::removed || changed_.any();
    }

protected:
    static constexpr std::size_t maximumFieldCount = 32;
    using FieldMask = std::bitset<maximumFieldCount>;

    RecordBase() = default;
    /// Whether assignments need a copy of the stored values to go back to.
    [[nodiscard]] bool hasStoredRow() const {
        return state_ == RecordState::stored || state_ == RecordState::removed;
    }
    /// Marks a field as differing from the store or not, and has the context remember the record.
    void markChanged(std::size_t field, bool differs);

private:
    friend class TypeStorage;
    template <class>
    friend class TypedStorage;

    TypeStorage* storage_ = nullptr; ///< where the record belongs; null while detached
    RowKey key_ = RowKey::none;
    Revision revision_ = Revision::none;
    FieldMask changed_;
    RecordState state_ = RecordState::detached;
    bool listedAsChanged_ = false;
    bool deletedElsewhere_ = false; ///< its row is gone, unsaved changes keep the record
};

/// Base of every record type. `Values` is a plain struct with the record's fields, described to the
/// store by a `RecordFields<Values>` specialisation. Derived types are constructible from their
/// values, which is how the store makes them, and publish named getters and setters:
///
///     class Reminder final : public platform::store::Record<ReminderValues> {
///     public:
///         explicit Reminder(ReminderValues values = {}) : Record(std::move(values)) {}
///         std::int64_t minutes() const { return values().minutes; }
///         void setMinutes(std::int64_t v) { assign<&ReminderValues::minutes>(v); }
///     };
///
/// Assigning a value equal to the present one is no change, and assigning the stored value takes
/// the change back.
template <class V>
class Record : public RecordBase {
public:
    using Values = V;
    static_assert(fieldCount<Values> <= maximumFieldCount);

    [[nodiscard]] const Values& values() const { return values_; }

protected:
    Record() = default;
    explicit Record(Values values) : values_(std::move(values)) {}

    template <auto Member>
    void assign(FieldType<Member> value) {
        if (sameValue(values_.*Member, value)) {
            return;
        }
        if (hasStoredRow() && !stored_) {
            stored_ = std::make_unique<Values>(values_);
        }
        values_.*Member = std::move(value);
        if (stored_) {
            markChanged(fieldIndex<Values, Member>(),
                        !sameValue(values_.*Member, (*stored_).*Member));
        }
    }

private:
    template <class>
    friend class TypedStorage;

    Values values_;
    std::unique_ptr<Values> stored_; ///< values as in the store, while fields may differ unsaved
};

} // namespace platform::store
