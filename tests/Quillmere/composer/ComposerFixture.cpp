#include "tests/Quillmere/composer/ComposerFixture.h"

#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "tests/Quillmere/support/QmlFixture.h"

#include <QtQml/QQmlEngine>

#include <sqlite3.h>

namespace quillmere {

ComposerFixture::ComposerFixture()
    : session_(std::make_unique<StoreSession>(
          platform::store::Store::open(QuillmerePersistence::schema(),
                                       {.file = folder_.filePath("Quillmere.sqlite").toStdString(),
                                        .busyTimeoutMilliseconds = 1}),
          time_)) {
}

ComposerFixture::~ComposerFixture() {
    setLocked(false);
}

TransactionComposerViewModel* ComposerFixture::open(bool takesTime) {
    savedMinutes_ = 0;
    finishedCount_ = 0;
    model_ = std::make_unique<TransactionComposerViewModel>(
        *session_, appState_,
        takesTime ? TransactionComposerMode::take : TransactionComposerMode::add,
        [this](BalanceAdjustment& saved) { savedMinutes_ = static_cast<int>(saved.minutes()); });
    connect(model_.get(), &TransactionComposerViewModel::finished, this,
            [this] { ++finishedCount_; });
    QQmlEngine::setObjectOwnership(model_.get(), QQmlEngine::CppOwnership);
    return model_.get();
}

int ComposerFixture::storedCount() {
    return static_cast<int>(session_->context().fetch<BalanceAdjustment>().size());
}

void ComposerFixture::setLocked(bool locked) {
    sqlite3_close(locker_);
    locker_ = nullptr;
    if (locked) {
        sqlite3_open(folder_.filePath("Quillmere.sqlite").toUtf8().constData(), &locker_);
        sqlite3_exec(locker_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    }
}

std::unique_ptr<QObject> makeFixture() {
    return std::make_unique<ComposerFixture>();
}

} // namespace quillmere
