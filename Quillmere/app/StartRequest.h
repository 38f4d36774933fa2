#pragma once

#include <QtCore/QVariantMap>

namespace quillmere {

/// What the desktop gave this start of the program so that a window may come forward for it.
struct StartRequest {
    /// In the form of the platform data of org.freedesktop.Application: `activation-token` and
    /// `desktop-startup-id`.
    QVariantMap platformData;

    /// As the environment says. Qt takes these variables away, so ask before it starts.
    [[nodiscard]] static StartRequest ofEnvironment();
};

/// The token in the platform data of a call: the activation token, else the startup id.
[[nodiscard]] QString activationToken(const QVariantMap& platformData);

} // namespace quillmere
