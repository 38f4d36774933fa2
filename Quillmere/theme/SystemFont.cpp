#include "Quillmere/theme/SystemFont.h"

#include <QtCore/QEvent>
#include <QtGui/QFontInfo>
#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmere {

namespace {

// Desktops use 12 to 15 pixels; whoever sets more wants larger text.
constexpr qreal largestUsualSize = 15;

std::array<qreal, 10> digitWidths(const QFont& font) {
    const QFontMetricsF metrics(font);
    std::array<qreal, 10> widths{};
    for (int digit = 0; digit < 10; ++digit) {
        widths[static_cast<std::size_t>(digit)] = metrics.horizontalAdvance(QChar(u'0' + digit));
    }
    return widths;
}

} // namespace

SystemFont::SystemFont(QObject* parent) : QObject(parent) {
    qGuiApp->installEventFilter(this);
}

QString SystemFont::family() const {
    return QGuiApplication::font().family();
}

qreal SystemFont::scale() const {
    const qreal size = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::clamp(size / largestUsualSize, 1.0, 2.0);
}

QFont SystemFont::tabular(const QFont& font) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    QFont result = font;
    result.setFeature("tnum", 1);
    return result;
#else
    return font;
#endif
}

bool SystemFont::hasEqualDigits(const QFont& font) {
    const auto widths = digitWidths(font);
    const auto [narrowest, widest] = std::minmax_element(widths.begin(), widths.end());
    return *widest - *narrowest < 0.05;
}

qreal SystemFont::digitWidth(const QFont& font) {
    const auto widths = digitWidths(font);
    return std::ceil(*std::max_element(widths.begin(), widths.end()) * 2) / 2;
}

bool SystemFont::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationFontChange) {
        emit changed();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillmere
