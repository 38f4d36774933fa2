#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace quillmere {

/// The figures of the balance card as they are shown and read out.
struct BalanceSummary {
    Q_GADGET
    QML_VALUE_TYPE(balanceSummary)
    Q_PROPERTY(double seconds MEMBER seconds CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString spoken MEMBER spoken CONSTANT)
    Q_PROPERTY(bool isNegative MEMBER isNegative CONSTANT)
    Q_PROPERTY(bool isTodayKnown MEMBER isTodayKnown CONSTANT)
    Q_PROPERTY(QString todayText MEMBER todayText CONSTANT)
    Q_PROPERTY(QString todaySpoken MEMBER todaySpoken CONSTANT)
    Q_PROPERTY(bool isTodayNegative MEMBER isTodayNegative CONSTANT)

public:
    double seconds = 0; ///< the balance; not a number when it could not be read
    QString text;       ///< clock text with its sign
    QString spoken;     ///< for screen readers
    bool isNegative = false;
    bool isTodayKnown = false; ///< false while the history is being read
    QString todayText;
    QString todaySpoken;
    bool isTodayNegative = false;

    /// `todaySeconds` is nothing while the history is being read.
    [[nodiscard]] static BalanceSummary of(double balanceSeconds,
                                           std::optional<double> todaySeconds);

    friend bool operator==(const BalanceSummary&, const BalanceSummary&) = default;
};

} // namespace quillmere
