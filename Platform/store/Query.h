#pragma once

#include "Platform/store/Record.h"
#include "Platform/store/RecordFields.h"

#include <cstddef>
#include <vector>

namespace platform::store {

enum class Comparison { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual };
enum class SortOrder { ascending, descending };

/// Which records a fetch answers: those that meet every condition. Conditions compare one field with
/// one value; they run in the database for stored rows and in memory for unsaved changes, with the
/// same outcome.
///
///     Filter<BalanceAdjustment>{}.where<&Values::date>(Comparison::lessOrEqual, now)
template <class R>
class Filter;

/// How a fetch orders its answer: by the first key, ties by the next. Without keys the order is
/// unspecified. Texts compare by their UTF-8 bytes, UUIDs by their canonical texts, absent dates
/// come first.
///
///     Sort<BalanceAdjustment>{}.by<&Values::date>(SortOrder::descending)
template <class R>
class Sort;

} // namespace platform::store
