#pragma once

#include "Quillmere/composer/AmountStepperDirection.h"
#include "Quillmere/composer/CategoryListModel.h"
#include "Quillmere/composer/NoteDraft.h"
#include "Quillmere/composer/TransactionComposerMode.h"
#include "Quillmere/controls/DatePickerModel.h"
#include "QuillmereKit/records/BalanceAdjustment.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace quillmere {

class AppState;
class StoreSession;

/// The form that adds time to the bank or takes time out of it. Made when the form is opened, gone
/// when it closes; nothing typed is kept. Main thread.
class TransactionComposerViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the screen that opens the form")
    Q_PROPERTY(bool takesTime READ takesTime CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(QString systemImage READ systemImage CONSTANT)
    Q_PROPERTY(QString saveTitle READ saveTitle CONSTANT)
    Q_PROPERTY(QString hoursText READ hoursText WRITE setHoursText NOTIFY hoursTextChanged)
    /// Empty when there is nothing to say.
    Q_PROPERTY(QString validationMessage READ validationMessage NOTIFY hoursTextChanged)
    Q_PROPERTY(bool canSave READ canSave NOTIFY hoursTextChanged)
    Q_PROPERTY(QList<int> presetHours READ presetHours CONSTANT)
    Q_PROPERTY(quillmere::CategoryListModel* categories READ categories CONSTANT)
    /// Position of the chosen category in `categories`; −1 when it is not among them.
    Q_PROPERTY(int categoryIndex READ categoryIndex WRITE setCategoryIndex NOTIFY categoryChanged)
    Q_PROPERTY(quillmere::DatePickerModel* date READ date CONSTANT)
    Q_PROPERTY(quillmere::NoteDraft* note READ note CONSTANT)

public:
    /// Called once after a successful save, before `finished`. The record lives in the session's
    /// context.
    using OnSaved = std::function<void(BalanceAdjustment&)>;

    /// Session and state must outlive the object.
    TransactionComposerViewModel(StoreSession& session, AppState& appState,
                                 TransactionComposerMode mode, OnSaved onSaved,
                                 QObject* parent = nullptr);

    [[nodiscard]] bool takesTime() const { return mode_ == TransactionComposerMode::take; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString systemImage() const;
    [[nodiscard]] QString saveTitle() const;
    [[nodiscard]] const QString& hoursText() const { return hoursText_; }
    void setHoursText(const QString& text);
    [[nodiscard]] QString validationMessage() const;
    [[nodiscard]] bool canSave() const;
    [[nodiscard]] static QList<int> presetHours();
    [[nodiscard]] CategoryListModel* categories() { return &categories_; }
    [[nodiscard]] int categoryIndex() const;
    void setCategoryIndex(int index);
    [[nodiscard]] DatePickerModel* date() { return &date_; }
    [[nodiscard]] NoteDraft* note() { return &note_; }

    Q_INVOKABLE void stepDown();
    Q_INVOKABLE void stepUp();
    Q_INVOKABLE void choosePreset(int hours);
    /// Runs when the form appears: in take mode a category that is not offered becomes the first
    /// one that is.
    Q_INVOKABLE void ensureValidCategory();
    /// Records the change and finishes; on failure reports the issue and leaves form and store as
    /// they were. Nothing happens while the amount is not valid, nor once the form has finished.
    Q_INVOKABLE void save();
    Q_INVOKABLE void cancel();

signals:
    void hoursTextChanged();
    void categoryChanged();
    /// The form is to be closed: it was saved or cancelled.
    void finished();

private:
    void step(AmountStepperDirection direction);
    void finish();
    void updateCategories();
    [[nodiscard]] BalanceAdjustment& record(int minutes);

    StoreSession& session_;
    AppState& appState_;
    TransactionComposerMode mode_;
    OnSaved onSaved_;
    QString hoursText_ = QStringLiteral("1");
    std::string categoryRawValue_ = "other";
    CategoryListModel categories_;
    DatePickerModel date_;
    NoteDraft note_;
    bool isFinished_ = false;
};

} // namespace quillmere
