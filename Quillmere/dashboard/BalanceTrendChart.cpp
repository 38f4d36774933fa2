#include "Quillmere/dashboard/BalanceTrendChart.h"

#include "Quillmere/theme/SystemFont.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qreal lineWidth = 2;
constexpr qreal labelGap = 10;
constexpr float fillOpacityTop = 0.20F;
constexpr float fillOpacityBottom = 0.05F;
constexpr float zeroOpacity = 0.35F;

QColor withOpacity(QColor color, float opacity) {
    color.setAlphaF(color.alphaF() * opacity);
    return color;
}

QString label(double seconds) {
    return QString::fromStdString(DurationFormatting::clock(seconds, true));
}

// Digits sit in cells of one width, as everywhere else where figures are shown.
qreal advance(const QFontMetricsF& metrics, qreal digitWidth, QChar character) {
    return character.isDigit() ? digitWidth : metrics.horizontalAdvance(character);
}

qreal labelWidth(const QFont& font, const QString& text) {
    const QFontMetricsF metrics(font);
    const qreal digitWidth = SystemFont::digitWidth(font);
    qreal width = 0;
    for (const QChar character : text) {
        width += advance(metrics, digitWidth, character);
    }
    return width;
}

qreal heightAt(double value, const BalanceTrend::ValueDomain& domain, const QRectF& area) {
    return area.bottom() - (value - domain.lower) / (domain.upper - domain.lower) * area.height();
}

} // namespace

BalanceTrendChart::BalanceTrendChart(QQuickItem* parent) : QQuickPaintedItem(parent) {
    setAntialiasing(true);
    connect(this, &BalanceTrendChart::valuesChanged, this, [this] { update(); });
    connect(this, &BalanceTrendChart::styleChanged, this, [this] { update(); });
}

void BalanceTrendChart::setValues(const QList<double>& values) {
    if (values == values_) {
        return;
    }
    values_ = values;
    domain_ = BalanceTrend::valueDomain(values_);
    emit valuesChanged();
}

void BalanceTrendChart::paint(QPainter* painter) {
    if (values_.size() < 2) {
        return;
    }
    painter->setFont(font_);
    const QString upper = label(domain_.upper);
    const QString lower = label(domain_.lower);
    const qreal labels = std::max(labelWidth(font_, upper), labelWidth(font_, lower));
    const QRectF area(0, 0, width() - labels - labelGap, height());
    paintCurve(*painter, area);
    paintZero(*painter, area);
    paintLabel(*painter, upper, width(), 0);
    paintLabel(*painter, lower, width(), height() - QFontMetricsF(font_).height());
}

void BalanceTrendChart::paintCurve(QPainter& painter, const QRectF& area) const {
    QPainterPath line;
    const qreal step = area.width() / static_cast<qreal>(values_.size() - 1);
    for (qsizetype i = 0; i < values_.size(); ++i) {
        const QPointF point(area.left() + static_cast<qreal>(i) * step,
                            heightAt(values_[i], domain_, area));
        i == 0 ? line.moveTo(point) : line.lineTo(point);
    }
    QPainterPath filled = line;
    filled.lineTo(area.bottomRight());
    filled.lineTo(area.bottomLeft());
    filled.closeSubpath();
    QLinearGradient fill(area.topLeft(), area.bottomLeft());
    fill.setColorAt(0, withOpacity(tint_, fillOpacityTop));
    fill.setColorAt(1, withOpacity(tint_, fillOpacityBottom));
    painter.fillPath(filled, fill);
    painter.strokePath(line, QPen(tint_, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

// Whole pixels: a hairline between two would be blurred.
void BalanceTrendChart::paintZero(QPainter& painter, const QRectF& area) const {
    const qreal y = std::floor(heightAt(0, domain_, area)) + 0.5;
    QPen pen(withOpacity(labelColor_, zeroOpacity), 1, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({2, 4});
    painter.setPen(pen);
    painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
}

void BalanceTrendChart::paintLabel(QPainter& painter, const QString& text, qreal right,
                                   qreal top) const {
    const QFontMetricsF metrics(font_);
    const qreal digitWidth = SystemFont::digitWidth(font_);
    qreal x = right - labelWidth(font_, text);
    painter.setPen(labelColor_);
    for (const QChar character : text) {
        const qreal cell = advance(metrics, digitWidth, character);
        const qreal inset = (cell - metrics.horizontalAdvance(character)) / 2;
        painter.drawText(QPointF(x + inset, top + metrics.ascent()), character);
        x += cell;
    }
}

} // namespace quillmere
