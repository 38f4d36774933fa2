#include "Quillmere/composer/TransactionComposerViewModel.h"

#include "Quillmere/composer/AmountText.h"
#include "Quillmere/composer/ComposerCategories.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/transactions/TimeBankTransactionController.h"

namespace quillmere {

namespace {

std::vector<AdjustmentCategoryOption> offeredCategories(StoreSession& session) {
    if (const TimeBankSettings* settings = session.settingsRecord()) {
        return ComposerCategories::options(settings->visibleAdjustmentKindsRawValue(),
                                           settings->customAdjustmentCategoriesRawValue());
    }
    const auto defaults = TimeBankSettings::create(session.time().now());
    return ComposerCategories::options(defaults->visibleAdjustmentKindsRawValue(),
                                       defaults->customAdjustmentCategoriesRawValue());
}

} // namespace

TransactionComposerViewModel::TransactionComposerViewModel(StoreSession& session,
                                                           AppState& appState,
                                                           TransactionComposerMode mode,
                                                           OnSaved onSaved, QObject* parent)
    : QObject(parent),
      session_(session),
      appState_(appState),
      mode_(mode),
      onSaved_(std::move(onSaved)),
      date_(session.time().clock(), session.time(), session.time().now()) {
    updateCategories();
    connect(&session, &StoreSession::settingsChanged, this,
            &TransactionComposerViewModel::updateCategories);
    connect(&session.time(), &TimeFollower::changed, &date_, &DatePickerModel::refresh);
}

QString TransactionComposerViewModel::title() const {
    return QString::fromUtf8(quillmere::title(mode_));
}

QString TransactionComposerViewModel::subtitle() const {
    return QString::fromUtf8(quillmere::subtitle(mode_));
}

QString TransactionComposerViewModel::systemImage() const {
    return QString::fromUtf8(quillmere::systemImage(mode_));
}

QString TransactionComposerViewModel::saveTitle() const {
    return QString::fromUtf8(quillmere::saveTitle(mode_));
}

void TransactionComposerViewModel::setHoursText(const QString& text) {
    if (hoursText_ != text) {
        hoursText_ = text;
        emit hoursTextChanged();
    }
}

QString TransactionComposerViewModel::validationMessage() const {
    return QString::fromUtf8(AmountText::validationMessage(hoursText_.toStdString()).value_or(""));
}

bool TransactionComposerViewModel::canSave() const {
    return AmountText::minutes(hoursText_.toStdString()).has_value();
}

QList<int> TransactionComposerViewModel::presetHours() {
    return {AmountText::presetHours.begin(), AmountText::presetHours.end()};
}

int TransactionComposerViewModel::categoryIndex() const {
    return categories_.rowOf(categoryRawValue_);
}

void TransactionComposerViewModel::setCategoryIndex(int index) {
    const auto& options = categories_.options();
    if (index < 0 || index >= static_cast<int>(options.size()) || index == categoryIndex()) {
        return;
    }
    categoryRawValue_ = options[static_cast<std::size_t>(index)].rawValue;
    emit categoryChanged();
}

void TransactionComposerViewModel::stepDown() {
    step(AmountStepperDirection::decrease);
}

void TransactionComposerViewModel::stepUp() {
    step(AmountStepperDirection::increase);
}

void TransactionComposerViewModel::step(AmountStepperDirection direction) {
    setHoursText(QString::fromStdString(AmountText::stepped(hoursText_.toStdString(), direction)));
}

void TransactionComposerViewModel::choosePreset(int hours) {
    setHoursText(QString::number(hours));
}

void TransactionComposerViewModel::ensureValidCategory() {
    if (takesTime()) {
        categoryRawValue_ = ComposerCategories::valid(categoryRawValue_, categories_.options());
        emit categoryChanged();
    }
}

void TransactionComposerViewModel::save() {
    const auto minutes = AmountText::minutes(hoursText_.toStdString());
    if (isFinished_ || !minutes) {
        return;
    }
    BalanceAdjustment* saved = nullptr;
    try {
        saved = &record(*minutes);
    } catch (const std::exception& error) {
        session_.context().rollback();
        appState_.report(error, tr("Couldn't save the time change"),
                         tr("Your change wasn't saved. Please try again."));
        return;
    }
    onSaved_(*saved);
    finish();
}

void TransactionComposerViewModel::cancel() {
    finish();
}

// The form can still be pressed while it goes away.
void TransactionComposerViewModel::finish() {
    isFinished_ = true;
    emit finished();
}

void TransactionComposerViewModel::updateCategories() {
    categories_.setOptions(offeredCategories(session_));
    emit categoryChanged();
}

BalanceAdjustment& TransactionComposerViewModel::record(int minutes) {
    const TimeFollower& time = session_.time();
    const platform::Instant date =
        TimeBankTransactionController::submissionDate(date_.selected(), time.now(), time.current());
    return TimeBankTransactionController::record(
        takesTime() ? -minutes : minutes, date, note_.text().toStdString(),
        takesTime() ? categoryRawValue_ : "manual", session_.context());
}

} // namespace quillmere
