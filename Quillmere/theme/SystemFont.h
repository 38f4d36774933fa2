#pragma once

#include <QtCore/QObject>
#include <QtGui/QFont>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// The desktop's interface font: its family, and how much larger than usual the user wants text.
class SystemFont : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString family READ family NOTIFY changed)
    /// 1 for the usual interface sizes (up to 15 pixels), up to 2 for larger ones.
    Q_PROPERTY(qreal scale READ scale NOTIFY changed)

public:
    explicit SystemFont(QObject* parent = nullptr);

    [[nodiscard]] QString family() const;
    [[nodiscard]] qreal scale() const;

    /// The font with digits of one width, where Qt can ask the font for them (from 6.7 on).
    Q_INVOKABLE [[nodiscard]] static QFont tabular(const QFont& font);
    /// Whether all ten digits of the font are equally wide.
    Q_INVOKABLE [[nodiscard]] static bool hasEqualDigits(const QFont& font);
    /// The width of the widest digit in pixels, rounded up to a half.
    Q_INVOKABLE [[nodiscard]] static qreal digitWidth(const QFont& font);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void changed();
};

} // namespace quillmere
