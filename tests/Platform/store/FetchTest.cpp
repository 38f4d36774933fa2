#include "tests/Platform/store/StoreTest.h"

#include <ostream>

namespace platform::store::test {
namespace {

/// A filter must hold for the same records, whether the database decides it or memory.
struct FilterCase {
    const char* name;
    Filter<Reminder> filter;
    std::string expected;
};

Filter<Reminder> due(Comparison comparison, double value) {
    return Filter<Reminder>{}.where<&ReminderValues::due>(comparison, Instant{value});
}

Filter<Reminder> ended(Comparison comparison, std::optional<Instant> value) {
    return Filter<Reminder>{}.where<&ReminderValues::endedAt>(comparison, value);
}

Filter<Reminder> title(Comparison comparison, std::string value) {
    return Filter<Reminder>{}.where<&ReminderValues::title>(comparison, std::move(value));
}

// a: due 1, ended 1; b: due 2, not ended; c: not a number in both; Z: due 2, ended 2.
const std::vector<FilterCase> filterCases = {
    {"EqualInstant", due(Comparison::equal, 2), "Z b"},
    {"NotEqualInstant", due(Comparison::notEqual, 2), "a c"},
    {"LessInstant", due(Comparison::less, 2), "a"},
    {"GreaterInstant", due(Comparison::greater, 1), "Z b"},
    {"AtLeastInstant", due(Comparison::greaterOrEqual, -1), "Z a b"},
    {"EqualNotANumber", due(Comparison::equal, notANumber), ""},
    {"NotEqualNotANumber", due(Comparison::notEqual, notANumber), "Z a b c"},
    {"LessNotANumber", due(Comparison::less, notANumber), ""},
    {"EqualAbsent", ended(Comparison::equal, {}), "b"},
    {"NotEqualAbsent", ended(Comparison::notEqual, {}), "Z a c"},
    {"LessAbsent", ended(Comparison::less, {}), ""},
    {"AtMostAbsent", ended(Comparison::lessOrEqual, {}), "b"},
    {"GreaterAbsent", ended(Comparison::greater, {}), "Z a c"},
    {"AtLeastAbsent", ended(Comparison::greaterOrEqual, {}), "Z a b c"},
    {"LessOptional", ended(Comparison::less, Instant{2}), "a b"},
    {"GreaterOptional", ended(Comparison::greater, Instant{1}), "Z"},
    {"NotEqualOptional", ended(Comparison::notEqual, Instant{1}), "Z b c"},
    {"AtMostOptionalNotANumber", ended(Comparison::lessOrEqual, Instant{notANumber}), "b"},
    {"EqualOptionalNotANumber", ended(Comparison::equal, Instant{notANumber}), ""},
    {"TextByBytes", title(Comparison::less, "a"), "Z"},
    {"TextWithQuote", title(Comparison::equal, "'"), ""},
    {"BothConditions",
     due(Comparison::equal, 2).where<&ReminderValues::title>(Comparison::greater, "a"), "b"},
    {"AlternativesStayTogether",
     ended(Comparison::less, Instant{2}).where<&ReminderValues::isDone>(Comparison::equal, true),
     ""},
};

void PrintTo(const FilterCase& row, std::ostream* out) {
    *out << row.name;
}

class FilterTest : public StoreTest, public testing::WithParamInterface<FilterCase> {};

TEST_P(FilterTest, HoldsAlikeInTheDatabaseAndInMemory) {
    const auto context = openContext();
    addReminder(*context, "a", 0, {1}).setEndedAt(Instant{1});
    addReminder(*context, "b", 0, {2});
    addReminder(*context, "c", 0, {notANumber}).setEndedAt(Instant{notANumber});
    addReminder(*context, "Z", 0, {2}).setEndedAt(Instant{2});
    const auto found = [&] {
        std::string names;
        for (const Reminder* reminder : context->fetch<Reminder>(
                 GetParam().filter, Sort<Reminder>{}.by<&ReminderValues::title>())) {
            names += (names.empty() ? "" : " ") + reminder->values().title;
        }
        return names;
    };
    EXPECT_EQ(found(), GetParam().expected) << "in memory";
    context->save();
    EXPECT_EQ(found(), GetParam().expected) << "in the database";
}

INSTANTIATE_TEST_SUITE_P(Conditions, FilterTest, testing::ValuesIn(filterCases),
                         [](const auto& row) { return row.param.name; });

TEST_F(StoreTest, SortsByKeysInTurn) {
    const auto context = openContext();
    addReminder(*context, "late", 1, {notANumber});
    addReminder(*context, "b", 1, {5});
    addReminder(*context, "a", 1, {5}).setEndedAt(Instant{1});
    addReminder(*context, "early", 2, {-5}).setEndedAt(Instant{0});
    const auto order = [&](const Sort<Reminder>& sort) {
        std::string names;
        for (const Reminder* reminder : context->fetch<Reminder>({}, sort)) {
            names += reminder->values().title + " ";
        }
        return names;
    };
    EXPECT_EQ(order(Sort<Reminder>{}.by<&ReminderValues::due>().by<&ReminderValues::title>()),
              "early a b late ");
    EXPECT_EQ(order(Sort<Reminder>{}
                        .by<&ReminderValues::due>(SortOrder::descending)
                        .by<&ReminderValues::title>(SortOrder::descending)),
              "late b a early ");
    EXPECT_EQ(order(Sort<Reminder>{}.by<&ReminderValues::endedAt>().by<&ReminderValues::title>()),
              "b late early a ");
}

} // namespace
} // namespace platform::store::test
