#pragma once

#include "Quillmere/history/HistoryViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

namespace quillmere {

/// The screen on a store in memory.
class HistoryFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::HistoryViewModel* model READ model CONSTANT)

public:
    [[nodiscard]] HistoryViewModel* model() { return &model_; }

    /// Records as many changes, an hour and a minute apart, the newest now.
    Q_INVOKABLE void record(int count);
    Q_INVOKABLE void removeAll();

private:
    HistoryViewModel model_{session(), appState(), PersistenceMode::localOnly};
};

} // namespace quillmere
