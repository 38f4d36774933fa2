#pragma once

#include <string>

namespace quillmere {

/// The two texts every duration is shown with. Durations are seconds, rounded to whole minutes with
/// halves away from zero.
namespace DurationFormatting {

/// "1:30", hours without upper limit. With the sign: "+" or U+2212, which follows the unrounded
/// value. Values that are not finite or beyond 2^62 minutes give an em dash in place of the time.
[[nodiscard]] std::string clock(double seconds, bool includeSign);

/// "plus 1 hours, 30 minutes", for screen readers; "duration unavailable" where `clock` gives a
/// dash.
[[nodiscard]] std::string accessible(double seconds);

} // namespace DurationFormatting

} // namespace quillmere
