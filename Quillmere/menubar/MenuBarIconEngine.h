#pragma once

#include <QtGui/QColor>
#include <QtGui/QIconEngine>

namespace quillmere {

/// A tray icon that is painted for every size asked for. Trays cut what is not square and place
/// icons on panels of colours that a program cannot know, so it brings a ground of its own that
/// stands out on light and dark ones and carries what is drawn on it in white.
class MenuBarIconEngine : public QIconEngine {
public:
    /// `ground` must be dark enough for white on it (4.5:1).
    explicit MenuBarIconEngine(QColor ground) : ground_(ground) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    /// The sizes of trays, once and twice as large; in device pixels.
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;

protected:
    /// Draws on the ground, which lies at the origin and has the given side in device pixels; the
    /// pen is white.
    virtual void draw(QPainter& painter, int side) const = 0;

    /// Draws a symbol by its name, in white unless said, in a square.
    static void drawSymbol(QPainter& painter, const QRect& square, const QString& name,
                           const QColor& color = Qt::white);
    /// The same with a symbol as large as it looks best alone.
    static void drawSymbol(QPainter& painter, int side, const QString& name);

private:
    QColor ground_;
};

} // namespace quillmere
