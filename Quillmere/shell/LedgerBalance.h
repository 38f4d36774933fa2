#pragma once

#include "Quillmere/shell/InstantTimer.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <span>

namespace quillmere {

class StoreSession;

/// The balance now, wherever it is shown: the starting balance and every change dated up to the
/// present. It follows records, settings and time, and moves when a change dated in the future
/// comes due. While the history is being read it is summed in the store
/// after every commit. Main thread.
class LedgerBalance : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the view models")
    Q_PROPERTY(double seconds READ seconds NOTIFY changed)
    /// Clock text with its sign.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// For screen readers.
    Q_PROPERTY(QString spoken READ spoken NOTIFY changed)
    Q_PROPERTY(bool isNegative READ isNegative NOTIFY changed)

public:
    /// `session` must outlive the object.
    explicit LedgerBalance(StoreSession& session, QObject* parent = nullptr);
    ~LedgerBalance() override;

    /// Not a number when the store could not be read.
    [[nodiscard]] double seconds() const { return seconds_; }
    [[nodiscard]] QString text() const;
    [[nodiscard]] QString spoken() const;
    [[nodiscard]] bool isNegative() const { return seconds_ < 0; }
    /// The starting balance that `seconds` contains.
    [[nodiscard]] std::int64_t startingBalanceMinutes() const { return startingBalance_; }

signals:
    void changed();
    /// Records, starting balance or time have moved and the balance was computed from them, whether
    /// or not it is another one.
    void updated();

private:
    void update();
    void onSettingsChanged();
    void onRefreshed();
    void scheduleNextChange(std::span<const LedgerRow> rows);
    [[nodiscard]] std::int64_t storedStartingBalance() const;
    [[nodiscard]] double secondsInStore() const;

    StoreSession& session_;
    InstantTimer nextChange_;
    std::int64_t startingBalance_ = 0;
    double seconds_ = 0;
};

} // namespace quillmere
