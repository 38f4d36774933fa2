#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/store/ListStep.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace quillmere {

/// The listed changes grouped by their days: the latest day first, within a day the newest change.
/// Follows the reports of the live query, so that an edit of one change moves one row.
///
/// That is the query's own order but for the hours that clocks set back across a midnight repeat:
/// they belong to the day before, which is one group all the same.
class HistorySections {
public:
    struct Row {
        platform::store::RowRef ref;
        platform::Instant day; ///< the start of the change's day

        friend bool operator==(const Row&, const Row&) = default;
    };

    HistorySections(std::span<const LedgerRow> changes, platform::Calendar calendar);

    [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

    /// Moves to the changes as they are after `steps`. Answers what that does to the rows.
    [[nodiscard]] platform::store::ListSteps update(std::span<const LedgerRow> changes,
                                                    const platform::store::ListSteps& steps);

private:
    void arrange(std::span<const LedgerRow> changes);

    platform::Calendar calendar_;
    std::vector<Row> rows_;
    std::vector<std::optional<std::size_t>> places_; ///< row of each change; none when not listed
};

} // namespace quillmere
