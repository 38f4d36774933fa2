#pragma once

#include "Quillmere/controls/PictureItem.h"

#include <QtGui/QColor>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// A symbol of the platform's symbol set, drawn in one colour, square and sharp at every scale.
/// Silent for accessibility: what it stands next to has the name.
class Symbol : public quillmere::PictureItem {
    Q_OBJECT
    QML_ELEMENT
    /// The symbol's name, such as "calendar.badge.clock". An empty name draws nothing.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    /// The width and height the item asks for; 16 until set.
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)

public:
    explicit Symbol(QQuickItem* parent = nullptr);

    [[nodiscard]] QString name() const { return name_; }
    void setName(const QString& name);
    [[nodiscard]] QColor color() const { return color_; }
    void setColor(const QColor& color);
    [[nodiscard]] qreal size() const { return size_; }
    void setSize(qreal size);

signals:
    void nameChanged();
    void colorChanged();
    void sizeChanged();

protected:
    [[nodiscard]] Picture picture(qreal scale) const override;

private:
    QString name_;
    QColor color_ = Qt::black;
    qreal size_ = 16;
};

} // namespace quillmere
