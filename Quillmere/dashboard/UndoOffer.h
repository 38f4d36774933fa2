#pragma once

#include "Quillmere/shell/Countdown.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <memory>

namespace quillmere {

class AppState;
class BalanceAdjustment;
class StoreSession;

/// The change just recorded, as long as it may be undone with one press: 8 seconds, the newest
/// only, and never longer than its record lives. Main thread.
class UndoOffer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("part of the dashboard's view model")
    Q_PROPERTY(bool isOffered READ isOffered NOTIFY offerChanged)
    /// Texts of the change offered; they stay until the next offer, while the banner goes away.
    Q_PROPERTY(QString title READ title NOTIFY textsChanged)
    Q_PROPERTY(QString amountText READ amountText NOTIFY textsChanged)

public:
    static constexpr std::chrono::seconds length{8};

    /// Session and application state must outlive the object.
    UndoOffer(StoreSession& session, AppState& appState, std::unique_ptr<Countdown> countdown);
    ~UndoOffer() override;

    /// Offers to undo `transaction`, a record of the session's context, in place of any other.
    void offer(BalanceAdjustment& transaction);

    /// Deletes the change and saves. When that fails the change is back and an issue says so; the
    /// offer is gone either way. Does nothing without an offer.
    Q_INVOKABLE void undo();

    /// Takes the offer back.
    void withdraw();

    [[nodiscard]] bool isOffered() const { return transaction_ != nullptr; }
    /// The record on offer, or null.
    [[nodiscard]] BalanceAdjustment* transaction() const { return transaction_; }
    [[nodiscard]] const QString& title() const { return title_; }
    [[nodiscard]] const QString& amountText() const { return amountText_; }

signals:
    void offerChanged();
    void textsChanged();

private:
    void onRecordsChanged();
    void updateTexts();

    StoreSession& session_;
    AppState& appState_;
    std::unique_ptr<Countdown> countdown_;
    BalanceAdjustment* transaction_ = nullptr;
    QString title_;
    QString amountText_;
};

} // namespace quillmere
