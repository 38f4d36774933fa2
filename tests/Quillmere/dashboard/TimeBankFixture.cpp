#include "tests/Quillmere/dashboard/TimeBankFixture.h"

#include "QuillmereKit/persistence/QuillmerePersistence.h"

#include <QtTest/QTest>

#include <sqlite3.h>

namespace quillmere {

namespace {

using platform::store::LiveState;
using platform::store::Store;

} // namespace

TimeBankFixture::TimeBankFixture()
    : store_(
          Store::open(QuillmerePersistence::schema(), {.file = folder_.path() / "Quillmere.sqlite",
                                                       .busyTimeoutMilliseconds = 1})) {
}

TimeBankFixture::~TimeBankFixture() {
    session_.reset();
    unlockStore();
}

StoreSession& TimeBankFixture::session() {
    if (!session_) {
        session_ = std::make_unique<StoreSession>(store_, time_);
    }
    return *session_;
}

void TimeBankFixture::loadHistory() {
    ASSERT_TRUE(QTest::qWaitFor(
        [this] { return session().adjustments().state() != LiveState::loading; }, 30'000));
}

BalanceAdjustment& TimeBankFixture::record(std::int64_t minutes, double offset,
                                           const std::string& note) {
    auto& adjustment = session().context().insert(
        std::make_unique<BalanceAdjustment>(platform::Uuid::random(), now + offset, minutes, note,
                                            BalanceAdjustmentKind::manual, now, now));
    session().context().save();
    return adjustment;
}

TimeBankSettings& TimeBankFixture::setUp(std::int64_t startingBalanceMinutes) {
    auto& settings = session().context().insert(TimeBankSettings::create(clock_));
    settings.setStartingBalanceMinutes(startingBalanceMinutes);
    settings.setHasCompletedOnboarding(true);
    session().context().save();
    return settings;
}

std::string TimeBankFixture::issueTitle() const {
    return appState_.issue().title.toStdString();
}

void TimeBankFixture::lockStore() {
    const std::string file = folder_.path() / "Quillmere.sqlite";
    ASSERT_EQ(sqlite3_open(file.c_str(), &locker_), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(locker_, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
}

void TimeBankFixture::unlockStore() {
    sqlite3_close(locker_);
    locker_ = nullptr;
}

} // namespace quillmere
