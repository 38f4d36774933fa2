#include "QuillmereKit/persistence/RuntimeEntitlements.h"

#include "Platform/text/WhiteSpace.h"
#include "QuillmereKit/records/AppConstants.h"

#include <algorithm>
#include <string_view>

namespace quillmere::RuntimeEntitlements {

namespace {

constexpr std::string_view teamKey = "com.apple.developer.team-identifier";
constexpr std::string_view groupsKey = "com.apple.security.application-groups";
constexpr std::string_view containersKey = "com.apple.developer.icloud-container-identifiers";
constexpr std::string_view servicesKey = "com.apple.developer.icloud-services";

bool hasProvisionedTeam(const platform::Entitlements& entitlements) {
    return !platform::trimmed(entitlements.string(teamKey).value_or("")).empty();
}

bool contains(std::span<const std::string> values, std::string_view value) {
    return std::ranges::find(values, value) != values.end();
}

} // namespace

bool hasUsableAppGroup(const platform::Entitlements& entitlements) {
    return hasProvisionedTeam(entitlements) &&
           contains(entitlements.strings(groupsKey), AppConstants::appGroupIdentifier);
}

bool hasRequiredCloudKitEntitlements(const platform::Entitlements& entitlements) {
    return includesRequiredCloudKitValues(
        entitlements.strings(containersKey), entitlements.strings(servicesKey),
        entitlements.strings(groupsKey), hasProvisionedTeam(entitlements));
}

bool includesRequiredCloudKitValues(std::span<const std::string> containerIdentifiers,
                                    std::span<const std::string> services,
                                    std::span<const std::string> applicationGroups,
                                    bool hasProvisionedTeam) {
    return hasProvisionedTeam &&
           contains(containerIdentifiers, AppConstants::cloudKitContainerIdentifier) &&
           contains(services, "CloudKit") &&
           contains(applicationGroups, AppConstants::appGroupIdentifier);
}

} // namespace quillmere::RuntimeEntitlements
