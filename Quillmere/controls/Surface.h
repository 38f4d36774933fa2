#pragma once

#include "Quillmere/controls/PictureItem.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A rounded surface with a hairline border inside its edge and a soft shadow outside of it, drawn
/// alike by every renderer. The shadow reaches beyond the item and never shows through the fill.
class Surface : public quillmere::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
    Q_PROPERTY(QColor borderColor MEMBER borderColor_ NOTIFY lookChanged)
    Q_PROPERTY(qreal borderWidth MEMBER borderWidth_ NOTIFY lookChanged)
    Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY lookChanged)
    Q_PROPERTY(QColor shadowColor MEMBER shadowColor_ NOTIFY lookChanged)
    /// How far the shadow is spread, in pixels; 0 for none.
    Q_PROPERTY(qreal shadowBlur MEMBER shadowBlur_ NOTIFY lookChanged)
    /// How far the shadow falls, in pixels.
    Q_PROPERTY(qreal shadowOffset MEMBER shadowOffset_ NOTIFY lookChanged)

public:
    explicit Surface(QQuickItem* parent = nullptr);

signals:
    void lookChanged();

protected:
    [[nodiscard]] Picture picture(qreal scale) const override;

private:
    QColor color_ = Qt::white;
    QColor borderColor_ = Qt::transparent;
    qreal borderWidth_ = 1;
    qreal radius_ = 0;
    QColor shadowColor_ = Qt::transparent;
    qreal shadowBlur_ = 0;
    qreal shadowOffset_ = 0;
};

} // namespace quillmere
