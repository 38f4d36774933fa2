#pragma once

#include "Quillmere/composer/CategoryListModel.h"
#include "Quillmere/composer/NoteDraft.h"
#include "Quillmere/controls/DatePickerModel.h"
#include "Quillmere/editor/AdjustmentAmount.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtQml/qqmlregistration.h>

#include <string>

namespace quillmere {

class AppState;
class StoreSession;

/// The form that corrects or deletes a change of the time bank, or makes a new one. Made when the
/// form is opened, gone when it closes; nothing is kept of what was not saved. Main thread.
///
/// A record opens with its own sign, whatever its category takes; only choosing another category
/// settles the direction.
class AdjustmentEditorViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that opens the form")
    Q_PROPERTY(QString title READ title CONSTANT)
    /// There is a record to delete.
    Q_PROPERTY(bool canDelete READ canDelete CONSTANT)
    Q_PROPERTY(quillmere::CategoryListModel* categories READ categories CONSTANT)
    /// Position of the chosen category in `categories`; −1 when it is not among them.
    Q_PROPERTY(int categoryIndex READ categoryIndex WRITE setCategoryIndex NOTIFY categoryChanged)
    Q_PROPERTY(quillmere::DatePickerModel* date READ date CONSTANT)
    /// The category leaves the direction open.
    Q_PROPERTY(bool choosesDirection READ choosesDirection NOTIFY categoryChanged)
    Q_PROPERTY(QString directionCaption READ directionCaption NOTIFY categoryChanged)
    Q_PROPERTY(QList<QString> directionTitles READ directionTitles CONSTANT)
    /// Position of the direction in `directionTitles`.
    Q_PROPERTY(int directionIndex READ directionIndex WRITE setDirectionIndex NOTIFY amountChanged)
    Q_PROPERTY(int maximumHours READ maximumHours CONSTANT)
    Q_PROPERTY(int hours READ hours WRITE setHours NOTIFY amountChanged)
    Q_PROPERTY(QString hoursText READ hoursText NOTIFY amountChanged)
    Q_PROPERTY(int maximumMinutes READ maximumMinutes CONSTANT)
    Q_PROPERTY(int minutes READ minutes WRITE setMinutes NOTIFY amountChanged)
    Q_PROPERTY(QString minutesText READ minutesText NOTIFY amountChanged)
    /// False beside 24 hours.
    Q_PROPERTY(bool choosesMinutes READ choosesMinutes NOTIFY amountChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY amountChanged)
    Q_PROPERTY(QString saveHint READ saveHint NOTIFY amountChanged)
    Q_PROPERTY(quillmere::NoteDraft* note READ note CONSTANT)
    Q_PROPERTY(bool showingDeleteConfirmation READ showingDeleteConfirmation NOTIFY
                   showingDeleteConfirmationChanged)

public:
    /// `adjustment` is a record of the session's context, or null for a new change. Session and
    /// state must outlive the object.
    AdjustmentEditorViewModel(StoreSession& session, AppState& appState,
                              BalanceAdjustment* adjustment, QObject* parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool canDelete() const { return adjustment_ != nullptr; }
    [[nodiscard]] CategoryListModel* categories() { return &categories_; }
    [[nodiscard]] int categoryIndex() const;
    void setCategoryIndex(int index);
    [[nodiscard]] DatePickerModel* date() { return &date_; }
    [[nodiscard]] bool choosesDirection() const;
    [[nodiscard]] QString directionCaption() const;
    [[nodiscard]] static QStringList directionTitles();
    [[nodiscard]] int directionIndex() const { return static_cast<int>(amount_.direction()); }
    void setDirectionIndex(int index);
    [[nodiscard]] static int maximumHours() { return AdjustmentAmount::maximumHours; }
    [[nodiscard]] int hours() const { return amount_.hours(); }
    void setHours(int hours);
    [[nodiscard]] QString hoursText() const;
    [[nodiscard]] static int maximumMinutes() { return AdjustmentAmount::maximumMinutes; }
    [[nodiscard]] int minutes() const { return amount_.minutes(); }
    void setMinutes(int minutes);
    [[nodiscard]] QString minutesText() const;
    [[nodiscard]] bool choosesMinutes() const;
    [[nodiscard]] bool canSave() const { return amount_.signedMinutes() != 0; }
    [[nodiscard]] QString saveHint() const;
    [[nodiscard]] NoteDraft* note() { return &note_; }
    [[nodiscard]] bool showingDeleteConfirmation() const { return showingDeleteConfirmation_; }

    /// Writes the record, or a new one, and finishes; on failure reports the issue and leaves form
    /// and store as they were. Nothing happens while there is no amount, nor once the form has
    /// finished.
    Q_INVOKABLE void save();
    /// Asks for the confirmation. Nothing happens without a record.
    Q_INVOKABLE void requestDelete();
    Q_INVOKABLE void dismissDeleteConfirmation();
    /// Deletes the record and finishes; on failure reports the issue and leaves form and store as
    /// they were. Nothing happens unless the confirmation is shown.
    Q_INVOKABLE void confirmDelete();
    Q_INVOKABLE void cancel();

signals:
    void categoryChanged();
    void amountChanged();
    void showingDeleteConfirmationChanged();
    /// The form is to be closed: it saved, deleted or was cancelled.
    void finished();

private:
    [[nodiscard]] AdjustmentCategoryOption selectedOption() const;
    void setAmount(const AdjustmentAmount& amount);
    void setShowingDeleteConfirmation(bool shown);
    void updateCategories();
    void write();
    void finish();

    StoreSession& session_;
    AppState& appState_;
    BalanceAdjustment* adjustment_;
    std::string categoryRawValue_;
    CategoryListModel categories_;
    DatePickerModel date_;
    AdjustmentAmount amount_;
    NoteDraft note_;
    bool showingDeleteConfirmation_ = false;
    bool isFinished_ = false;
};

} // namespace quillmere
