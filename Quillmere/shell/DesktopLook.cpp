#include "Quillmere/shell/DesktopLook.h"

namespace quillmere {

namespace {

constexpr uint preferDark = 1;
constexpr uint preferLight = 2;
constexpr uint preferMoreContrast = 1;
constexpr uint preferLessMotion = 1;

} // namespace

void DesktopLook::take(const QString& space, const QString& key, const QVariant& value) {
    if (space == QLatin1String("org.freedesktop.appearance")) {
        const uint number = value.toUInt();
        if (key == QLatin1String("color-scheme")) {
            prefersDark = number == preferDark    ? std::optional(true)
                          : number == preferLight ? std::optional(false)
                                                  : std::nullopt;
        } else if (key == QLatin1String("contrast")) {
            highContrast = number == preferMoreContrast;
        } else if (key == QLatin1String("reduced-motion")) {
            reducedMotion = number == preferLessMotion;
        }
    } else if (space == QLatin1String("org.gnome.desktop.interface") &&
               key == QLatin1String("enable-animations")) {
        reducedMotion = !value.toBool();
    } else if (space == QLatin1String("org.gnome.desktop.a11y.interface") &&
               key == QLatin1String("high-contrast")) {
        highContrast = value.toBool();
    }
}

} // namespace quillmere
