#pragma once

#include <QtCore/QPoint>
#include <QtCore/QString>

class QPainter;

namespace quillmere {

/// Figures small enough for a tray icon: signs and digits of the desktop's interface font, each
/// fitted to whole device pixels so that it stays sharp at 16, and all digits equally wide.
class MenuBarIconDigits {
public:
    /// `height` in device pixels. A text with more than two digits is made to fit `widthLimit` by
    /// making them narrower.
    MenuBarIconDigits(int height, int widthLimit);

    /// The width of a text of digits, after a "+", U+2212 or ":" or nothing.
    [[nodiscard]] double width(const QString& text) const;
    /// Draws the text in the painter's pen colour, ending before `topRight`.
    void drawEndingAt(QPainter& painter, QPoint topRight, const QString& text) const;

    /// The room to leave beside a digit.
    [[nodiscard]] int gap() const { return gap_; }

private:
    [[nodiscard]] double digitWidth(qsizetype digits, double prefixWidth) const;
    [[nodiscard]] double prefixWidth(const QString& text) const;
    void drawPrefix(QPainter& painter, double left, double top, QChar prefix) const;
    void drawDigit(QPainter& painter, double left, double top, double width, QChar digit) const;

    int height_;
    int widthLimit_;
    int stroke_;
    int gap_;
    int signWidth_;
};

} // namespace quillmere
