#include "Quillmere/dashboard/UndoOffer.h"

#include "Platform/store/Context.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "QuillmereKit/records/LedgerRowText.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <utility>

namespace quillmere {

UndoOffer::UndoOffer(StoreSession& session, AppState& appState,
                     std::unique_ptr<Countdown> countdown)
    : session_(session), appState_(appState), countdown_(std::move(countdown)) {
    connect(countdown_.get(), &Countdown::finished, this, &UndoOffer::withdraw);
    connect(&session_, &StoreSession::adjustmentsChanged, this, &UndoOffer::onRecordsChanged);
}

UndoOffer::~UndoOffer() = default;

void UndoOffer::offer(BalanceAdjustment& transaction) {
    transaction_ = &transaction;
    countdown_->start(length);
    updateTexts();
    emit offerChanged();
}

void UndoOffer::withdraw() {
    countdown_->cancel();
    if (std::exchange(transaction_, nullptr)) {
        emit offerChanged();
    }
}

void UndoOffer::undo() {
    BalanceAdjustment* transaction = transaction_;
    if (!transaction) {
        return;
    }
    withdraw();
    platform::store::Context& context = session_.context();
    try {
        context.remove(*transaction);
        context.save();
    } catch (const std::exception& error) {
        context.rollback();
        appState_.report(
            error, tr("Couldn't undo the change"),
            tr("The time-bank change is still saved. Please try deleting it from Activity."));
    }
}

void UndoOffer::onRecordsChanged() {
    if (!transaction_) {
        return;
    }
    if (transaction_->isAlive()) {
        updateTexts();
    } else {
        withdraw();
    }
}

void UndoOffer::updateTexts() {
    const std::int64_t minutes = transaction_->minutes();
    title_ = QString::fromUtf8(LedgerRowText::direction(minutes));
    amountText_ =
        QString::fromStdString(DurationFormatting::clock(static_cast<double>(minutes) * 60, true));
    emit textsChanged();
}

} // namespace quillmere
