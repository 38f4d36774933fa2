#pragma once

#include "Quillmere/controls/PictureItem.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A linear gradient from the top left to the bottom right corner of the item, evenly through its
/// colours, in a rounded rectangle. Colours are mixed with their opacity, so "clear" may be any
/// colour of opacity 0.
class GradientFill : public quillmere::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<QColor> colors MEMBER colors_ NOTIFY lookChanged)
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY lookChanged)

public:
    explicit GradientFill(QQuickItem* parent = nullptr);

signals:
    void lookChanged();

protected:
    [[nodiscard]] Picture picture(qreal scale) const override;

private:
    QList<QColor> colors_;
    qreal radius_ = 0;
};

} // namespace quillmere
