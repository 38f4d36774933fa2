#include "Quillmere/menubar/MenuBarIconDigits.h"

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

// Shares of the height.
constexpr double digitShare = 0.62;
constexpr double strokeShare = 0.17;
constexpr double gapShare = 0.12;
constexpr double signShare = 0.6;

constexpr int outlineSize = 100; // large enough that hinting leaves no trace

int pixels(double length) {
    return std::max(1, static_cast<int>(std::lround(length)));
}

bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

QPainterPath outline(QChar digit) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(outlineSize);
    font.setWeight(QFont::Bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    QPainterPath path;
    path.addText(0, 0, font, digit);
    return path;
}

// A one is narrow in every font; the others fill their cell.
bool fillsItsCell(QChar digit) {
    return digit != u'1';
}

} // namespace

MenuBarIconDigits::MenuBarIconDigits(int height, int widthLimit)
    : height_(height),
      widthLimit_(widthLimit),
      stroke_(pixels(height * strokeShare)),
      gap_(pixels(height * gapShare)),
      // A plus has arms of equal length on both sides of its bar.
      signWidth_(stroke_ + 2 * pixels((height * signShare - stroke_) / 2)) {
}

double MenuBarIconDigits::prefixWidth(const QString& text) const {
    if (text.isEmpty() || isDigit(text.front())) {
        return 0;
    }
    return (text.front() == u':' ? stroke_ : signWidth_) + gap_;
}

double MenuBarIconDigits::digitWidth(qsizetype digits, double prefixWidth) const {
    const double ideal = pixels(height_ * digitShare);
    const double gaps = static_cast<double>((digits - 1) * gap_);
    return std::min(ideal, (widthLimit_ - prefixWidth - gaps) / static_cast<double>(digits));
}

double MenuBarIconDigits::width(const QString& text) const {
    const double prefix = prefixWidth(text);
    const qsizetype digits = text.size() - (prefix > 0 ? 1 : 0);
    return prefix + static_cast<double>(digits) * (digitWidth(digits, prefix) + gap_) - gap_;
}

void MenuBarIconDigits::drawEndingAt(QPainter& painter, QPoint topRight,
                                     const QString& text) const {
    double left = topRight.x() - width(text);
    const double prefix = prefixWidth(text);
    const QString digits = prefix > 0 ? text.mid(1) : text;
    if (prefix > 0) {
        drawPrefix(painter, left, topRight.y(), text.front());
        left += prefix;
    }
    const double cell = digitWidth(digits.size(), prefix);
    for (const QChar digit : digits) {
        drawDigit(painter, left, topRight.y(), cell, digit);
        left += cell + gap_;
    }
}

void MenuBarIconDigits::drawPrefix(QPainter& painter, double left, double top, QChar prefix) const {
    const QColor color = painter.pen().color();
    const int stroke = stroke_;
    if (prefix == u':') {
        const int inset = std::max(1, height_ / 4 - stroke / 2);
        painter.fillRect(QRectF(left, top + inset, stroke, stroke), color);
        painter.fillRect(QRectF(left, top + height_ - inset - stroke, stroke, stroke), color);
        return;
    }
    const int above = (height_ - stroke) / 2;
    const double middle = top + above;
    painter.fillRect(QRectF(left, middle, signWidth_, stroke), color);
    if (prefix == u'+') {
        const int arm = (signWidth_ - stroke) / 2;
        painter.fillRect(QRectF(left + arm, middle - arm, stroke, signWidth_), color);
    }
}

void MenuBarIconDigits::drawDigit(QPainter& painter, double left, double top, double width,
                                  QChar digit) const {
    const QPainterPath path = outline(digit);
    const QRectF box = path.boundingRect();
    if (box.isEmpty()) {
        return;
    }
    const double tall = height_ / box.height();
    const double wide =
        fillsItsCell(digit) ? width / box.width() : std::min(tall, width / box.width());
    QTransform fit;
    fit.translate(left + (width - box.width() * wide) / 2, top);
    fit.scale(wide, tall);
    fit.translate(-box.left(), -box.top());
    painter.fillPath(fit.map(path), painter.pen().color());
}

} // namespace quillmere
