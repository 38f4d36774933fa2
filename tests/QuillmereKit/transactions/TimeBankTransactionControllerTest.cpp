#include "QuillmereKit/transactions/TimeBankTransactionController.h"

#include "tests/QuillmereKit/KitTest.h"

#include <limits>

namespace quillmere::test {

namespace {

/// A second passes with every reading.
class TickingClock final : public platform::Clock {
public:
    [[nodiscard]] Instant now() const override { return {++ticks_}; }

private:
    mutable double ticks_ = 1'000;
};

class TransactionTest : public StoreTest {
protected:
    BalanceAdjustment& record(std::int64_t minutes, std::string_view note = "",
                              std::string_view kind = "manual") {
        return TimeBankTransactionController::record(minutes, now - day, note, kind, *context);
    }

    TickingClock ticking;
    std::unique_ptr<platform::store::Context> context = store->makeContext({ticking, calendars});
};

TEST_F(TransactionTest, RefusesAmountsThatAreNotOne) {
    using Reason = TimeBankTransactionError::Reason;
    const struct {
        std::int64_t minutes;
        Reason reason;
        const char* text;
    } rows[] = {
        {0, Reason::zeroDuration, "Choose an amount of time first."},
        {1441, Reason::durationTooLarge, "A single transaction can't exceed 24 hours."},
        {-1441, Reason::durationTooLarge, "A single transaction can't exceed 24 hours."},
        {std::numeric_limits<std::int64_t>::min(), Reason::durationTooLarge,
         "A single transaction can't exceed 24 hours."},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.minutes);
        try {
            record(row.minutes, "a note", "holiday");
            ADD_FAILURE() << "recorded";
        } catch (const TimeBankTransactionError& error) {
            EXPECT_EQ(error, TimeBankTransactionError(row.reason));
            EXPECT_STREQ(error.what(), row.text);
        }
        EXPECT_FALSE(context->hasChanges());
        EXPECT_TRUE(context->fetch<BalanceAdjustment>().empty());
    }
}

TEST_F(TransactionTest, SavesTheChangeWithTheTimeOfEntry) {
    const BalanceAdjustment& change = record(-1440, "  Dentist\n", "appointment");
    EXPECT_FALSE(context->hasChanges());
    EXPECT_EQ(change.date(), now - day);
    EXPECT_EQ(change.minutes(), -1440);
    EXPECT_EQ(change.note(), "Dentist");
    EXPECT_EQ(change.createdAt(), Instant{1'001});
    EXPECT_EQ(change.modifiedAt(), Instant{1'002});
    const auto stored = makeContext()->fetch<BalanceAdjustment>();
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_NE(record(1440).id(), change.id());
}

TEST_F(TransactionTest, NormalisesNoteAndCategory) {
    const std::string letters(270, 'x');
    EXPECT_EQ(record(1, letters + std::string(20, ' ') + "y").note(), letters);
    EXPECT_EQ(record(1, "", "Holiday").kindRawValue(), "manual");
    EXPECT_EQ(record(1, "", "custom:IEd5bQ==").kindRawValue(), "custom:R3lt");
}

TEST_F(TransactionTest, DatesAChangeForTodayNow) {
    using TimeBankTransactionController::submissionDate;
    EXPECT_EQ(submissionDate(berlin(3, 4), now, calendar), now);
    EXPECT_EQ(submissionDate(berlin(3, 4, 23.9), now, calendar), now);
    EXPECT_EQ(submissionDate(berlin(3, 3, 23.9), now, calendar), berlin(3, 3, 23.9));
    EXPECT_EQ(submissionDate(berlin(3, 4, 1), now, calendarIn("America/New_York")),
              berlin(3, 4, 1));
}

} // namespace

} // namespace quillmere::test
