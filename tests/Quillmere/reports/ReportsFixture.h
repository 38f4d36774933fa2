#pragma once

#include "Quillmere/reports/ReportsViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

#include <QtCore/QTemporaryDir>

namespace quillmere {

/// The calendar on a store in memory: Sunday, 22 November 2026, where weeks begin on Sunday.
class ReportsFixture : public StoreFixture {
    Q_OBJECT
    Q_PROPERTY(quillmere::ReportsViewModel* model READ model NOTIFY modelChanged)

public:
    [[nodiscard]] ReportsViewModel* model() { return model_.get(); }

    /// Starts again at the present month.
    Q_INVOKABLE void reset();
    Q_INVOKABLE void record(int minutes, int daysAgo, const QString& note);

signals:
    void modelChanged();

private:
    QTemporaryDir folder_;
    platform::UserFolders folders_{folder_.path().toStdString(), folder_.path().toStdString(),
                                   folder_.path().toStdString()};
    std::unique_ptr<ReportsViewModel> model_ =
        std::make_unique<ReportsViewModel>(session(), appState(), folders_);
};

} // namespace quillmere
