pragma Singleton

import QtQuick
import Quillmere.theme

// Colours, type, sizes and motion. Stateless for its users: only the root of the application sets
// the first three properties.
QtObject {
    id: theme

    // The appearance in effect; set at the root.
    property bool dark: false
    property bool highContrast: false
    property bool reducedMotion: false

    // The palette, used as it is for fills, symbols and drawings.
    readonly property color accent: Qt.rgba(0.24, 0.72, 0.56, 1)
    readonly property color deepAccent: Qt.rgba(0.08, 0.42, 0.34, 1)
    readonly property color warm: Qt.rgba(0.96, 0.68, 0.35, 1)
    readonly property color alert: Qt.rgba(0.91, 0.35, 0.38, 1)

    // Text. Coloured text is lifted against the surface that makes it hardest to read.
    readonly property color primary: dark ? Qt.rgba(0.95, 0.96, 0.955, 1) : Qt.rgba(0.10, 0.11, 0.105, 1)
    readonly property color secondary: dark ? Qt.rgba(1, 1, 1, highContrast ? 0.84 : 0.64)
                                            : Qt.rgba(0, 0, 0, highContrast ? 0.78 : 0.60)
    readonly property color placeholder: dark ? Qt.rgba(1, 1, 1, highContrast ? 0.84 : 0.62)
                                              : Qt.rgba(0, 0, 0, highContrast ? 0.78 : 0.56)
    readonly property color accentText: dark || highContrast ? readable(deepAccent) : deepAccent
    readonly property color alertText: highContrast ? readable(alert) : alert
    readonly property color warmText: highContrast ? readable(warm) : warm
    readonly property color prominentText: "white"

    // Surfaces.
    readonly property color window: dark ? Qt.rgba(0.106, 0.114, 0.110, 1) : Qt.rgba(0.984, 0.984, 0.976, 1)
    readonly property color sheet: dark ? Qt.rgba(0.112, 0.120, 0.116, 1) : Qt.rgba(0.988, 0.988, 0.980, 1)
    readonly property color popover: dark ? Qt.rgba(0.160, 0.170, 0.165, 1) : "white"
    readonly property color card: dark ? Qt.rgba(1, 1, 1, 0.055) : Qt.rgba(1, 1, 1, 0.74)
    readonly property color cardHover: dark ? Qt.rgba(1, 1, 1, 0.085) : Qt.rgba(1, 1, 1, 1)
    readonly property color cardPressed: dark ? Qt.rgba(1, 1, 1, 0.035) : Qt.rgba(0.955, 0.965, 0.958, 1)
    readonly property color control: dark ? Qt.rgba(1, 1, 1, 0.055) : "white"
    readonly property color controlHover: dark ? Qt.rgba(1, 1, 1, 0.095) : Qt.rgba(0.965, 0.972, 0.968, 1)
    readonly property color controlPressed: dark ? Qt.rgba(1, 1, 1, 0.03) : Qt.rgba(0.93, 0.94, 0.935, 1)
    readonly property color segment: dark ? Qt.rgba(1, 1, 1, 0.13) : "white"
    readonly property color controlBorder: dark ? Qt.rgba(1, 1, 1, highContrast ? 0.70 : 0.11)
                                                : Qt.rgba(0, 0, 0, highContrast ? 0.60 : 0.11)
    readonly property color toggleOn: highContrast ? readable3(accent) : accent
    readonly property color toggleOff: dark ? Qt.rgba(1, 1, 1, 0.16) : Qt.rgba(0, 0, 0, 0.10)
    readonly property color knob: "white"
    readonly property color hairline: highContrast ? controlBorder : tinted(secondary, 0.16)
    readonly property color divider: highContrast ? controlBorder
        : dark ? Qt.rgba(1, 1, 1, 0.09) : Qt.rgba(0, 0, 0, 0.09)
    readonly property color sidebar: tinted(primary, 0.018)
    readonly property color scrim: Qt.rgba(0, 0, 0, dark ? 0.45 : 0.28)
    readonly property color shadow: Qt.rgba(0, 0, 0, dark ? 0.16 : 0.04)
    readonly property color knobShadow: Qt.rgba(0, 0, 0, 0.22)
    readonly property color deepShadow: Qt.rgba(0, 0, 0, dark ? 0.50 : 0.18)
    readonly property color prominent: dark ? Qt.rgba(0.10, 0.50, 0.405, 1) : deepAccent
    readonly property color prominentHover: dark ? Qt.rgba(0.105, 0.515, 0.415, 1) : Qt.rgba(0.09, 0.46, 0.375, 1)
    readonly property color prominentPressed: dark ? Qt.rgba(0.085, 0.44, 0.355, 1) : Qt.rgba(0.06, 0.35, 0.285, 1)
    readonly property color destructive: Qt.rgba(0.77, 0.20, 0.24, 1)
    readonly property color destructiveHover: Qt.rgba(0.81, 0.23, 0.27, 1)
    readonly property color destructivePressed: Qt.rgba(0.67, 0.16, 0.20, 1)
    readonly property color track: dark ? Qt.rgba(1, 1, 1, 0.07) : Qt.rgba(0, 0, 0, 0.055)
    readonly property color selection: tinted(accent, dark ? 0.45 : 0.35)
    readonly property color focus: highContrast ? primary : dark ? accent : readable3(accent)
    readonly property color focusGlow: tinted(accent, highContrast ? 0 : dark ? 0.30 : 0.32)

    // Type: the desktop's own interface font.
    readonly property real textScale: SystemFont.scale
    readonly property font caption2: styled(11, Font.DemiBold)
    readonly property font caption: styled(12, Font.Normal)
    readonly property font captionMedium: styled(12, Font.Medium)
    readonly property font captionSemibold: styled(12, Font.DemiBold)
    readonly property font captionBold: styled(12, Font.Bold)
    readonly property font footnote: styled(12, Font.Normal)
    readonly property font footnoteMedium: styled(12, Font.Medium)
    readonly property font subheadline: styled(13, Font.Normal)
    readonly property font subheadlineMedium: styled(13, Font.Medium)
    readonly property font subheadlineSemibold: styled(13, Font.DemiBold)
    readonly property font body: styled(14, Font.Normal)
    readonly property font bodyMedium: styled(14, Font.Medium)
    readonly property font headline: styled(15, Font.DemiBold)
    readonly property font title3: styled(16, Font.DemiBold)
    readonly property font title2: styled(20, Font.Bold)
    readonly property font title: styled(26, Font.Bold)
    // The letter spacing of captions in capitals, in pixels.
    readonly property real capsSpacing: 1.8

    // Spacing, in pixels.
    readonly property int spaceXS: 4
    readonly property int spaceS: 8
    readonly property int spaceM: 12
    readonly property int spaceL: 18
    readonly property int spaceXL: 24

    // Corner radii and line widths.
    readonly property int cardRadius: 24
    readonly property int cardPadding: 20
    readonly property int sheetRadius: 18
    readonly property int popoverRadius: 14
    readonly property int controlRadius: 10
    readonly property int rowRadius: 8
    readonly property int hairlineWidth: 1
    readonly property int controlHeight: 36
    readonly property int compactControlHeight: 30

    // Motion, in milliseconds.
    readonly property int springDuration: reducedMotion ? 0 : Spring.duration
    readonly property int fadeDuration: reducedMotion ? 0 : 120

    // Opacity of what cannot be used at the moment.
    readonly property real disabledOpacity: 0.42

    // The hardest surface: the brightest one on dark, the most tinted one on light.
    readonly property color hardestSurface: Contrast.over(tinted(accent, 0.18),
        Contrast.over(card, Contrast.over(tinted(accent, 0.12), window)))

    function tinted(color: color, opacity: real): color {
        return Qt.rgba(color.r, color.g, color.b, color.a * opacity);
    }

    function readable(color: color): color {
        return Contrast.lift(color, hardestSurface, 4.5);
    }

    // For lines that carry meaning: WCAG 2.1 asks 3:1 of them.
    function readable3(color: color): color {
        return Contrast.lift(color, window, 3);
    }

    function styled(size: int, weight: int): font {
        return Qt.font({
            family: SystemFont.family,
            pixelSize: Math.round(size * SystemFont.scale),
            weight: weight
        });
    }
}
