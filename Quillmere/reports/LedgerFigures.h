#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// What was added and taken, and the difference, as it is shown and read out.
struct LedgerFigures {
    Q_GADGET
    QML_VALUE_TYPE(ledgerFigures)
    Q_PROPERTY(QString added MEMBER added CONSTANT)
    Q_PROPERTY(QString addedSpoken MEMBER addedSpoken CONSTANT)
    Q_PROPERTY(QString subtracted MEMBER subtracted CONSTANT)
    Q_PROPERTY(QString subtractedSpoken MEMBER subtractedSpoken CONSTANT)
    Q_PROPERTY(QString net MEMBER net CONSTANT)
    Q_PROPERTY(QString netSpoken MEMBER netSpoken CONSTANT)
    Q_PROPERTY(bool isNetNegative MEMBER isNetNegative CONSTANT)

public:
    QString added; ///< clock text without sign, as is `subtracted`
    QString addedSpoken;
    QString subtracted;
    QString subtractedSpoken;
    QString net; ///< clock text with its sign
    QString netSpoken;
    bool isNetNegative = false;

    /// From seconds, all but the last positive.
    [[nodiscard]] static LedgerFigures of(double added, double subtracted, double net);

    /// Dashes, while nothing is known yet.
    [[nodiscard]] static LedgerFigures unknown();

    friend bool operator==(const LedgerFigures&, const LedgerFigures&) = default;
};

} // namespace quillmere
