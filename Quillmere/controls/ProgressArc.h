#pragma once

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickPaintedItem>

namespace quillmere {

/// A ring with a quarter of it marked: the still picture that a progress indicator turns.
class ProgressArc : public QQuickPaintedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
    Q_PROPERTY(QColor trackColor MEMBER trackColor_ NOTIFY lookChanged)

public:
    explicit ProgressArc(QQuickItem* parent = nullptr);
    void paint(QPainter* painter) override;

signals:
    void lookChanged();

private:
    QColor color_ = Qt::black;
    QColor trackColor_ = Qt::transparent;
};

} // namespace quillmere
