#pragma once

#include "Quillmere/editor/AdjustmentEditorViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

namespace quillmere {

/// Opens the form on a change in memory, and says what became of it.
class EditorFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(int finishedCount MEMBER finishedCount_)

public:
    /// On a new change of so many minutes with the note "Dentist"; on none for 0.
    Q_INVOKABLE quillmere::AdjustmentEditorViewModel* open(int minutes);
    Q_INVOKABLE int storedMinutes() const;
    Q_INVOKABLE bool isDeleted() const { return !adjustment_->isAlive(); }

private:
    std::vector<std::unique_ptr<AdjustmentEditorViewModel>> models_; ///< views outlive their tests
    BalanceAdjustment* adjustment_ = nullptr;
    int finishedCount_ = 0;
};

} // namespace quillmere
