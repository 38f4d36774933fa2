#pragma once

#include "Platform/entitlements/Entitlements.h"

#include <span>
#include <string>

namespace quillmere {

/// What this build may use. Nothing is cached: every question reads the entitlements again.
namespace RuntimeEntitlements {

/// Whether the shared container and the shared preferences may be used.
[[nodiscard]] bool hasUsableAppGroup(const platform::Entitlements& entitlements);

/// Whether private sync may be tried.
[[nodiscard]] bool hasRequiredCloudKitEntitlements(const platform::Entitlements& entitlements);

/// The decision behind `hasRequiredCloudKitEntitlements`: a provisioned team, our container, the
/// service "CloudKit" and our application group, compared as whole strings.
[[nodiscard]] bool includesRequiredCloudKitValues(std::span<const std::string> containerIdentifiers,
                                                  std::span<const std::string> services,
                                                  std::span<const std::string> applicationGroups,
                                                  bool hasProvisionedTeam);

} // namespace RuntimeEntitlements

} // namespace quillmere
