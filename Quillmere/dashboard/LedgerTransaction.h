#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

namespace platform {
class DateText;
}

namespace quillmere {

class BalanceAdjustment;

/// One change as a row of a list shows it.
struct LedgerTransaction {
    Q_GADGET
    QML_VALUE_TYPE(ledgerTransaction)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString systemImage MEMBER systemImage CONSTANT)
    Q_PROPERTY(QString dateText MEMBER dateText CONSTANT)
    Q_PROPERTY(QString amountText MEMBER amountText CONSTANT)
    Q_PROPERTY(QString accessibleName MEMBER accessibleName CONSTANT)
    Q_PROPERTY(bool takesTime MEMBER takesTime CONSTANT)

public:
    QString title;          ///< the note on one line, else the category or the direction
    QString systemImage;    ///< symbol of the direction
    QString dateText;       ///< weekday, day and time
    QString amountText;     ///< clock text with its sign
    QString accessibleName; ///< the note or the direction, and the amount in words
    bool takesTime = false; ///< negative minutes

    [[nodiscard]] static LedgerTransaction of(const BalanceAdjustment& adjustment,
                                              const platform::DateText& dates);

    friend bool operator==(const LedgerTransaction&, const LedgerTransaction&) = default;
};

} // namespace quillmere
