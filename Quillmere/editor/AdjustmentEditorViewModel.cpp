#include "Quillmere/editor/AdjustmentEditorViewModel.h"

#include "Quillmere/editor/EditorCategories.h"
#include "Quillmere/shell/AppState.h"
#include "Quillmere/shell/StoreSession.h"
#include "Quillmere/shell/TimeFollower.h"
#include "QuillmereKit/records/NoteValidation.h"

#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace quillmere {

namespace {

/// The record's date, but never one to come; now for one that is no date.
platform::Instant openingDate(const BalanceAdjustment* adjustment, platform::Instant now) {
    return adjustment && adjustment->date() < now ? adjustment->date() : now;
}

} // namespace

AdjustmentEditorViewModel::AdjustmentEditorViewModel(StoreSession& session, AppState& appState,
                                                     BalanceAdjustment* adjustment, QObject* parent)
    : QObject(parent),
      session_(session),
      appState_(appState),
      adjustment_(adjustment),
      categoryRawValue_(adjustment ? adjustment->kindRawValue() : "manual"),
      date_(session.time().clock(), session.time(), openingDate(adjustment, session.time().now())),
      amount_(adjustment ? AdjustmentAmount::of(adjustment->minutes()) : AdjustmentAmount{}),
      note_(adjustment ? QString::fromStdString(adjustment->note()) : QString()) {
    updateCategories();
    connect(&session, &StoreSession::settingsChanged, this,
            &AdjustmentEditorViewModel::updateCategories);
    connect(&session.time(), &TimeFollower::changed, &date_, &DatePickerModel::refresh);
}

QString AdjustmentEditorViewModel::title() const {
    return adjustment_ ? tr("Edit adjustment") : tr("Add adjustment");
}

int AdjustmentEditorViewModel::categoryIndex() const {
    const auto option = AdjustmentCategoryOption::resolve(categoryRawValue_);
    return option ? categories_.rowOf(option->rawValue) : -1;
}

void AdjustmentEditorViewModel::setCategoryIndex(int index) {
    const auto& options = categories_.options();
    if (index < 0 || index >= static_cast<int>(options.size()) || index == categoryIndex()) {
        return;
    }
    const AdjustmentCategoryOption& option = options[static_cast<std::size_t>(index)];
    categoryRawValue_ = option.rawValue;
    if (option.behavior != AdjustmentCategoryBehavior::manual) {
        setDirectionIndex(static_cast<int>(option.behavior == AdjustmentCategoryBehavior::credit
                                               ? AdjustmentDirection::credit
                                               : AdjustmentDirection::debit));
    }
    emit categoryChanged();
}

bool AdjustmentEditorViewModel::choosesDirection() const {
    return selectedOption().behavior == AdjustmentCategoryBehavior::manual;
}

QString AdjustmentEditorViewModel::directionCaption() const {
    switch (selectedOption().behavior) {
    case AdjustmentCategoryBehavior::debit:
        return tr("This category deducts the amount below from your time bank.");
    case AdjustmentCategoryBehavior::credit:
        return tr("This legacy category adds the amount below to your time bank.");
    case AdjustmentCategoryBehavior::manual:
        break;
    }
    return tr("Choose whether to add or deduct the amount below.");
}

QStringList AdjustmentEditorViewModel::directionTitles() {
    QStringList titles;
    for (const AdjustmentDirection direction : AdjustmentDirections::all) {
        const std::string_view title = rawValue(direction);
        titles.append(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
    }
    return titles;
}

void AdjustmentEditorViewModel::setDirectionIndex(int index) {
    AdjustmentAmount amount = amount_;
    amount.setDirection(AdjustmentDirections::all.at(static_cast<std::size_t>(index)));
    setAmount(amount);
}

void AdjustmentEditorViewModel::setHours(int hours) {
    AdjustmentAmount amount = amount_;
    amount.setHours(hours);
    setAmount(amount);
}

QString AdjustmentEditorViewModel::hoursText() const {
    return tr("Hours: %1").arg(hours());
}

void AdjustmentEditorViewModel::setMinutes(int minutes) {
    AdjustmentAmount amount = amount_;
    amount.setMinutes(minutes);
    setAmount(amount);
}

QString AdjustmentEditorViewModel::minutesText() const {
    return tr("Minutes: %1").arg(minutes());
}

bool AdjustmentEditorViewModel::choosesMinutes() const {
    return hours() != AdjustmentAmount::maximumHours;
}

QString AdjustmentEditorViewModel::saveHint() const {
    return canSave() ? tr("Saves this balance adjustment") : tr("Choose a duration before saving");
}

void AdjustmentEditorViewModel::save() {
    if (isFinished_ || !canSave()) {
        return;
    }
    try {
        write();
    } catch (const std::exception& error) {
        session_.context().rollback();
        appState_.report(
            error, tr("Couldn't save the adjustment"),
            tr("Your changes weren't saved. The editor will stay open so you can try again."));
        return;
    }
    finish();
}

void AdjustmentEditorViewModel::requestDelete() {
    setShowingDeleteConfirmation(canDelete() && !isFinished_);
}

void AdjustmentEditorViewModel::dismissDeleteConfirmation() {
    setShowingDeleteConfirmation(false);
}

void AdjustmentEditorViewModel::confirmDelete() {
    if (!showingDeleteConfirmation_) {
        return;
    }
    setShowingDeleteConfirmation(false);
    try {
        session_.context().remove(*adjustment_);
        session_.context().save();
    } catch (const std::exception& error) {
        session_.context().rollback();
        appState_.report(error, tr("Couldn't delete the activity"),
                         tr("Nothing was deleted. Keep the editor open and try again."));
        return;
    }
    finish();
}

void AdjustmentEditorViewModel::cancel() {
    finish();
}

AdjustmentCategoryOption AdjustmentEditorViewModel::selectedOption() const {
    return AdjustmentCategoryOption::resolve(categoryRawValue_)
        .value_or(AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind::manual));
}

void AdjustmentEditorViewModel::setAmount(const AdjustmentAmount& amount) {
    if (amount_ != amount) {
        amount_ = amount;
        emit amountChanged();
    }
}

void AdjustmentEditorViewModel::setShowingDeleteConfirmation(bool shown) {
    if (std::exchange(showingDeleteConfirmation_, shown) != shown) {
        emit showingDeleteConfirmationChanged();
    }
}

// The record's own category stays selectable after another one was chosen.
void AdjustmentEditorViewModel::updateCategories() {
    const TimeBankSettingsValues settings = session_.settingsValues();
    const std::array<std::string_view, 2> kept{
        categoryRawValue_, adjustment_ ? adjustment_->kindRawValue() : categoryRawValue_};
    categories_.setOptions(EditorCategories::options(settings.visibleAdjustmentKindsRawValue,
                                                     settings.customAdjustmentCategoriesRawValue,
                                                     kept));
    emit categoryChanged();
}

void AdjustmentEditorViewModel::write() {
    if (adjustment_ && !adjustment_->isAlive()) {
        throw std::runtime_error("the change being edited was deleted elsewhere");
    }
    const TimeFollower& time = session_.time();
    auto created = adjustment_ ? nullptr : BalanceAdjustment::create(time.clock());
    BalanceAdjustment& adjustment = adjustment_ ? *adjustment_ : *created;
    adjustment.setKindRawValue(selectedOption().rawValue);
    adjustment.setDate(date_.selected());
    adjustment.setMinutes(amount_.signedMinutes());
    adjustment.setNote(NoteValidation::normalized(note_.text().toStdString()));
    adjustment.setModifiedAt(time.now());
    if (created) {
        session_.context().insert(std::move(created));
    }
    session_.context().save();
}

// The form can still be pressed while it goes away.
void AdjustmentEditorViewModel::finish() {
    isFinished_ = true;
    emit finished();
}

} // namespace quillmere
