#pragma once

#include "Quillmere/composer/TransactionComposerViewModel.h"
#include "tests/Quillmere/support/StoreFixture.h"

#include <QtCore/QTemporaryDir>

#include <memory>

struct sqlite3;

namespace quillmere {

/// Opens the form on a store file of its own, and says what became of it.
class ComposerFixture : public QObject {
    Q_OBJECT
    Q_PROPERTY(int savedMinutes MEMBER savedMinutes_)
    Q_PROPERTY(int finishedCount MEMBER finishedCount_)

public:
    ComposerFixture();
    ~ComposerFixture() override;

    Q_INVOKABLE quillmere::TransactionComposerViewModel* open(bool takesTime);
    Q_INVOKABLE int storedCount();
    Q_INVOKABLE QString issueTitle() const { return appState_.issue().title; }
    /// From now on saves fail, because another program keeps the store locked; or no longer.
    Q_INVOKABLE void setLocked(bool locked);

private:
    platform::ManualClock clock_{StoreFixture::start};
    TimeFollower time_{clock_};
    platform::MemoryLogSink log_;
    AppState appState_{log_};
    QTemporaryDir folder_;
    std::unique_ptr<StoreSession> session_;
    std::unique_ptr<TransactionComposerViewModel> model_;
    sqlite3* locker_ = nullptr;
    int savedMinutes_ = 0;
    int finishedCount_ = 0;
};

} // namespace quillmere
