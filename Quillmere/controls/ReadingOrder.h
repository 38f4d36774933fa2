#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace quillmere {

/// Keeps the children of an item in the order in which they stand, from top to bottom, for
/// assistive technology reads them in the order of the children. A view that scrolls makes its rows
/// in any order.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* container MEMBER container_)

public:
    using QObject::QObject;

    /// Call after children came or moved. Costs little when all is in order.
    Q_INVOKABLE void restore();

private:
    QQuickItem* container_ = nullptr;
};

} // namespace quillmere
