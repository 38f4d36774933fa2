#include "QuillmereKit/navigation/AppRoute.h"

#include "QuillmereKit/records/AppConstants.h"

#include <algorithm>

namespace quillmere {

namespace {

struct RouteFacts {
    std::string_view rawValue;
    std::string_view title;
    std::string_view systemImage;
};

const RouteFacts& facts(AppRoute route) {
    static constexpr std::array<RouteFacts, 4> table{{
        {"overview", "Time bank", "plus.forwardslash.minus"},
        {"history", "Activity", "list.bullet.rectangle"},
        {"reports", "Calendar", "calendar"},
        {"settings", "Settings", "slider.horizontal.3"},
    }};
    return table.at(static_cast<std::size_t>(route));
}

/// Schemes and our hosts are ASCII (RFC 3986).
std::string asciiLowerCased(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return lower;
}

/// The host of what follows the scheme's colon, without user and port; empty without an authority.
std::string_view host(std::string_view afterScheme) {
    if (!afterScheme.starts_with("//")) {
        return {};
    }
    std::string_view authority = afterScheme.substr(2);
    authority = authority.substr(0, authority.find_first_of("/?#"));
    if (const auto at = authority.rfind('@'); at != std::string_view::npos) {
        authority.remove_prefix(at + 1);
    }
    return authority.substr(0, authority.find(':'));
}

} // namespace

std::string_view rawValue(AppRoute route) {
    return facts(route).rawValue;
}

std::string_view title(AppRoute route) {
    return facts(route).title;
}

std::string_view systemImage(AppRoute route) {
    return facts(route).systemImage;
}

std::string url(AppRoute route) {
    return std::string(AppConstants::deepLinkScheme) + "://" + std::string(rawValue(route));
}

std::optional<AppRoute> AppRoutes::fromRawValue(std::string_view rawValue) {
    const auto* found =
        std::ranges::find(all, rawValue, [](AppRoute route) { return quillmere::rawValue(route); });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

std::optional<AppRoute> AppRoutes::fromURL(std::string_view url) {
    const auto colon = url.find(':');
    if (colon == std::string_view::npos ||
        asciiLowerCased(url.substr(0, colon)) != AppConstants::deepLinkScheme) {
        return std::nullopt;
    }
    return fromRawValue(asciiLowerCased(host(url.substr(colon + 1))));
}

} // namespace quillmere
