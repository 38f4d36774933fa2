#pragma once

#include <QtCore/QPointer>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace quillmere {

/// Keeps the children of an item in the order in which they stand, from top to bottom, for
/// assistive technology reads them in the order of the children. A view that scrolls makes its rows
/// in any order.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem* container READ container WRITE setContainer NOTIFY containerChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* container() const { return container_; }
    void setContainer(QQuickItem* container);

    /// Call when a child has moved; those that come are noticed. Restores the order once the
    /// present changes are over, and costs little when all is in order.
    Q_INVOKABLE void schedule();

signals:
    void containerChanged();

private:
    void restore();

    QPointer<QQuickItem> container_;
    bool isScheduled_ = false;
};

} // namespace quillmere
