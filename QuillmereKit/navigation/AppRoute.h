#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// The four places of the main window, in the order they are listed.
enum class AppRoute { overview, history, reports, settings };

/// The persisted and linked form.
[[nodiscard]] std::string_view rawValue(AppRoute route);
[[nodiscard]] std::string_view title(AppRoute route);
[[nodiscard]] std::string_view systemImage(AppRoute route);
/// "quillmere://" and the raw value.
[[nodiscard]] std::string url(AppRoute route);

namespace AppRoutes {

inline constexpr std::array all{AppRoute::overview, AppRoute::history, AppRoute::reports,
                                AppRoute::settings};

/// The route with exactly this raw value.
[[nodiscard]] std::optional<AppRoute> fromRawValue(std::string_view rawValue);

/// The route of a deep link: scheme "quillmere" and a raw value as host, both in any case; path,
/// query and fragment do not matter. Nothing for any other text.
[[nodiscard]] std::optional<AppRoute> fromURL(std::string_view url);

} // namespace AppRoutes

} // namespace quillmere
