#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <optional>

namespace quillmere {

/// What the desktop asks of every program's look.
struct DesktopLook {
    std::optional<bool> prefersDark; ///< nothing: the desktop does not say
    bool highContrast = false;
    bool reducedMotion = false;

    friend bool operator==(const DesktopLook&, const DesktopLook&) = default;

    /// Takes in one setting of the desktop portal (XDG Desktop Portal, interface
    /// org.freedesktop.portal.Settings): `color-scheme`, `contrast` and `reduced-motion` of
    /// org.freedesktop.appearance, and the settings with which GNOME says the latter two.
    void take(const QString& space, const QString& key, const QVariant& value);
};

} // namespace quillmere
