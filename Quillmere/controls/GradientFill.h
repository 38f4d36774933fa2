#pragma once

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace quillmere {

/// A linear gradient from the top left to the bottom right corner of the item, evenly through its
/// colours, in a rounded rectangle. Colours are mixed with their opacity, so "clear" may be any
/// colour of opacity 0.
class GradientFill : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors MEMBER colors_ NOTIFY lookChanged)
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY lookChanged)

public:
    explicit GradientFill(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;

signals:
    void lookChanged();

private:
    [[nodiscard]] QLinearGradient gradient() const;

    QList<QColor> colors_;
    qreal radius_ = 0;
};

} // namespace quillmere
