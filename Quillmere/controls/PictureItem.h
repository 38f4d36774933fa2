#pragma once

#include <QtGui/QImage>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/QQuickItem>

namespace quillmere {

/// An item that shows a picture it draws of itself, alike with every renderer. Drawn when the look,
/// the size or the screen's scale has changed, and kept otherwise. Subclasses name it with its
/// namespace, without which Qt 6.4 does not tell QML's tools of it.
class PictureItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit PictureItem(QQuickItem* parent = nullptr);

protected:
    struct Picture {
        QImage image; ///< null for nothing
        QRectF place; ///< in the item's coordinates; may reach beyond it
    };

    /// Draws the item, whose size is not empty, at `scale` device pixels a logical one. On the
    /// thread that renders, with the main thread waiting.
    [[nodiscard]] virtual Picture picture(qreal scale) const = 0;

    /// To be called when the look has changed.
    void redraw();

    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) final;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    bool stale_ = true;
};

} // namespace quillmere
