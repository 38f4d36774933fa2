#pragma once

#include "QuillmereKit/calculation/BalanceTrend.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace quillmere {

/// The balance over the last days as one drawing: a line with a translucent area beneath it, and
/// the ends of its vertical range in words. Draws nothing with fewer than two values.
class BalanceTrendChart : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Seconds, oldest first, evenly spaced from the left edge of the drawing to the right one.
    Q_PROPERTY(QList<double> values READ values WRITE setValues NOTIFY valuesChanged)
    Q_PROPERTY(QColor tint MEMBER tint_ NOTIFY styleChanged)
    Q_PROPERTY(QColor labelColor MEMBER labelColor_ NOTIFY styleChanged)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY styleChanged)

public:
    explicit BalanceTrendChart(QQuickItem* parent = nullptr);

    [[nodiscard]] const QList<double>& values() const { return values_; }
    void setValues(const QList<double>& values);

    void paint(QPainter* painter) override;

signals:
    void valuesChanged();
    void styleChanged();

private:
    void paintCurve(QPainter& painter, const QRectF& area) const;
    void paintZero(QPainter& painter, const QRectF& area) const;
    void paintLabel(QPainter& painter, const QString& text, qreal right, qreal top) const;

    QList<double> values_;
    QColor tint_ = Qt::black;
    QColor labelColor_ = Qt::black;
    QFont font_;
    BalanceTrend::ValueDomain domain_;
};

} // namespace quillmere
