#pragma once

#include "Platform/store/FieldValue.h"
#include "Platform/store/RecordFields.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <utility>
#include <vector>

namespace platform::store {

enum class SortOrder { ascending, descending };

/// Which records a fetch answers: those that meet every condition. Conditions compare one field
/// with one value; they run in the database for stored rows and in memory for unsaved changes, with
/// the same outcome. Texts compare by their UTF-8 bytes; an absent date is less than every date;
/// nothing but `notEqual` holds for an instant that is not a number.
///
///     Filter<BalanceAdjustment>{}.where<&Values::date>(Comparison::lessOrEqual, now)
template <class R>
class Filter {
public:
    using Values = typename R::Values;

    template <auto Member>
    Filter& where(Comparison comparison, FieldType<Member> value) {
        // Built in place: g++ 12 takes the moved temporary's value for uninitialised.
        Condition& added = conditions_.emplace_back();
        added.field = fieldIndex<Values, Member>();
        added.comparison = comparison;
        added.value.template emplace<FieldType<Member>>(std::move(value));
        tests_.push_back([](const Values& values, const Condition& condition) {
            return holds(values.*Member, condition.comparison,
                         std::get<FieldType<Member>>(condition.value));
        });
        return *this;
    }

    [[nodiscard]] bool matches(const Values& values) const {
        for (std::size_t i = 0; i < tests_.size(); ++i) {
            if (!tests_[i](values, conditions_[i])) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] const std::vector<Condition>& conditions() const { return conditions_; }

private:
    std::vector<Condition> conditions_;
    std::vector<bool (*)(const Values&, const Condition&)> tests_;
};

/// How a fetch orders its answer: by the first key, ties by the next. Without keys the order is
/// unspecified. Texts compare by their UTF-8 bytes, UUIDs by their canonical texts, absent dates
/// come first, instants that are not numbers last.
///
///     Sort<BalanceAdjustment>{}.by<&Values::date>(SortOrder::descending)
template <class R>
class Sort {
public:
    using Values = typename R::Values;

    template <auto Member>
    Sort& by(SortOrder order = SortOrder::ascending) {
        keys_.push_back({order, [](const Values& a, const Values& b) {
                             return ordering(a.*Member, b.*Member);
                         }});
        return *this;
    }

    [[nodiscard]] bool isEmpty() const { return keys_.empty(); }

    /// Whether `a` comes before `b`.
    [[nodiscard]] bool precedes(const Values& a, const Values& b) const {
        for (const Key& key : keys_) {
            const std::weak_ordering order =
                key.order == SortOrder::ascending ? key.compare(a, b) : key.compare(b, a);
            if (order != 0) {
                return order < 0;
            }
        }
        return false;
    }

private:
    struct Key {
        SortOrder order;
        std::weak_ordering (*compare)(const Values&, const Values&);
    };
    std::vector<Key> keys_;
};

} // namespace platform::store
