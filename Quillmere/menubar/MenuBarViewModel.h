#pragma once

#include "Quillmere/composer/TransactionComposerMode.h"
#include "Quillmere/composer/TransactionComposerViewModel.h"
#include "Quillmere/shell/LedgerBalance.h"

#include <QtCore/QObject>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>

namespace quillmere {

/// The tray panel once setup is done: the balance and the two ways to record a change. Made when
/// the panel is opened, gone when it closes. Main thread.
class MenuBarViewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the panel's root")
    Q_PROPERTY(quillmere::LedgerBalance* balance READ balance CONSTANT)
    /// The form being shown, or null.
    Q_PROPERTY(quillmere::TransactionComposerViewModel* activeComposer READ activeComposer NOTIFY
                   activeComposerChanged)
    Q_PROPERTY(bool isAdding READ isAdding NOTIFY activeComposerChanged)
    Q_PROPERTY(bool isTaking READ isTaking NOTIFY activeComposerChanged)

public:
    /// Both must outlive the object.
    MenuBarViewModel(StoreSession& session, AppState& appState, QObject* parent = nullptr);
    ~MenuBarViewModel() override;

    [[nodiscard]] LedgerBalance* balance() { return &balance_; }
    [[nodiscard]] TransactionComposerViewModel* activeComposer() const { return composer_.get(); }
    [[nodiscard]] bool isAdding() const { return mode_ == TransactionComposerMode::add; }
    [[nodiscard]] bool isTaking() const { return mode_ == TransactionComposerMode::take; }

    /// Shows a new form for `mode`, in place of one for the other; the form that is there for this
    /// mode stays.
    void openComposer(TransactionComposerMode mode);
    Q_INVOKABLE void addTime();
    Q_INVOKABLE void takeFlexTime();
    /// Clears the active form. Called when it has finished; its view must be gone by then.
    Q_INVOKABLE void closeComposer();

signals:
    void activeComposerChanged();

private:
    void onSaved();
    void setComposer(std::unique_ptr<TransactionComposerViewModel> composer,
                     std::optional<TransactionComposerMode> mode);

    StoreSession& session_;
    AppState& appState_;
    LedgerBalance balance_;
    std::unique_ptr<TransactionComposerViewModel> composer_;
    std::optional<TransactionComposerMode> mode_; ///< what the active form is for
};

} // namespace quillmere
