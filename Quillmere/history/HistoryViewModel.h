#pragma once

#include "Quillmere/editor/AdjustmentEditorViewModel.h"
#include "Quillmere/history/HistoryListModel.h"
#include "QuillmereKit/persistence/PersistenceMode.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace quillmere {

class AppState;
class StoreSession;

/// Every change, the form for one of them, and the deletion of one or several after a confirmation.
/// Made when the screen is shown, gone with it. Main thread.
class HistoryViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")
    Q_PROPERTY(quillmere::HistoryListModel* items READ items CONSTANT)
    /// The history is being read; nobody knows yet whether there are items.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY contentChanged)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY contentChanged)
    /// The form being shown, or null.
    Q_PROPERTY(quillmere::AdjustmentEditorViewModel* editor READ editor NOTIFY editorChanged)
    /// Changes wait for the user's word that they may be deleted.
    Q_PROPERTY(bool isDeletionPending READ isDeletionPending NOTIFY pendingDeletionChanged)
    Q_PROPERTY(QString deletionTitle READ deletionTitle NOTIFY pendingDeletionChanged)
    Q_PROPERTY(QString deletionMessage READ deletionMessage CONSTANT)
    Q_PROPERTY(QString deleteTitle READ deleteTitle NOTIFY pendingDeletionChanged)

public:
    /// `mode` is how the session's store was opened. Session and state must outlive the object.
    HistoryViewModel(StoreSession& session, AppState& appState, PersistenceMode mode,
                     QObject* parent = nullptr);
    ~HistoryViewModel() override;

    [[nodiscard]] HistoryListModel* items() { return &items_; }
    [[nodiscard]] bool isLoading() const;
    [[nodiscard]] bool isEmpty() const;
    [[nodiscard]] AdjustmentEditorViewModel* editor() const { return editor_.get(); }
    [[nodiscard]] bool isDeletionPending() const { return !pendingDeletion_.empty(); }
    [[nodiscard]] QString deletionTitle() const;
    [[nodiscard]] QString deletionMessage() const;
    [[nodiscard]] QString deleteTitle() const;

    /// Opens the form for a row's change and ends the selection. Nothing happens while a form is
    /// open, or when the change is gone.
    Q_INVOKABLE void open(int row);
    /// Called when the form is no longer shown.
    Q_INVOKABLE void closeEditor();

    /// Ask whether a row, or the selection and where there is none the row, may be deleted. What
    /// was asked first stays what is asked; a row that has gone meanwhile is not asked for.
    Q_INVOKABLE void requestDeletion(int row);
    Q_INVOKABLE void requestDeletionOfSelection(int row);
    Q_INVOKABLE void dismissDeletion();
    /// Deletes what was asked for, all of it or nothing; a failure is reported as an issue. Several
    /// changes are deleted on a worker.
    Q_INVOKABLE void confirmDeletion();

signals:
    void contentChanged();
    void editorChanged();
    void pendingDeletionChanged();

private:
    using Refs = std::vector<platform::store::RowRef>;

    void setPendingDeletion(Refs refs);
    void deleteOne(platform::store::RowRef ref);
    void deleteSeveral(Refs refs);

    StoreSession& session_;
    AppState& appState_;
    PersistenceMode mode_;
    HistoryListModel items_;
    std::unique_ptr<AdjustmentEditorViewModel> editor_;
    Refs pendingDeletion_;
};

} // namespace quillmere
