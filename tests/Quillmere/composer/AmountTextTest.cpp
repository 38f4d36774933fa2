#include "Quillmere/composer/AmountText.h"

#include <gtest/gtest.h>

namespace quillmere {

namespace {

constexpr const char* notANumber = "Enter a valid number of hours.";
constexpr const char* notPositive = "Enter an amount greater than zero.";
constexpr const char* tooMuch = "A single adjustment cannot exceed 24 hours.";
constexpr const char* tooLittle = "Enter at least one minute.";

} // namespace

TEST(AmountText, becomesMinutesOrAMessage) {
    struct Row {
        std::string text;
        std::optional<int> minutes;
        const char* message; ///< null for none
    };
    using namespace std::string_literals;
    for (const Row& row : {
             Row{"1.5", 90, nullptr},
             Row{"1,5", 90, nullptr},
             Row{" \t2\n ", 120, nullptr},
             Row{"\u00a02\u2003", 120, nullptr},
             Row{"+0.75", 45, nullptr},
             Row{".25", 15, nullptr},
             Row{"1e1", 600, nullptr},
             Row{"0x10", 960, nullptr},
             Row{"24", 1440, nullptr},
             Row{"24.0", 1440, nullptr},
             Row{"0.0084", 1, nullptr},
             Row{"0.025", 2, nullptr}, // 1.5 minutes, halves away from zero
             Row{"0.0083", {}, tooLittle},
             Row{"0.001", {}, tooLittle},
             Row{"24.01", {}, tooMuch},
             Row{"24.0000001", {}, tooMuch},
             Row{"1,000.5", {}, notANumber},
             Row{"0", {}, notPositive},
             Row{"-1", {}, notPositive},
             Row{"-0.001", {}, notPositive},
             Row{"", {}, nullptr},
             Row{" \n\t", {}, nullptr},
             Row{"abc", {}, notANumber},
             Row{"1.5h", {}, notANumber},
             Row{"1 5", {}, notANumber},
             Row{"1\0"s, {}, notANumber},
             Row{"--1", {}, notANumber},
             Row{"1e", {}, notANumber},
             Row{"inf", {}, notANumber},
             Row{"-infinity", {}, notANumber},
             Row{"nan", {}, notANumber},
             Row{"1e999", {}, notANumber},
             Row{"\u0661", {}, notANumber}, // a digit, but not one of C's
         }) {
        SCOPED_TRACE("\"" + row.text + "\"");
        EXPECT_EQ(AmountText::minutes(row.text), row.minutes);
        EXPECT_EQ(AmountText::validationMessage(row.text),
                  row.message != nullptr ? std::optional<std::string_view>(row.message)
                                         : std::nullopt);
    }
}

TEST(AmountText, stepsByTheHour) {
    constexpr auto up = AmountStepperDirection::increase;
    constexpr auto down = AmountStepperDirection::decrease;
    struct Row {
        const char* text;
        AmountStepperDirection direction;
        const char* stepped;
    };
    for (const Row& row :
         {Row{"1", up, "2"}, Row{"1", down, "0"}, Row{"", up, "1"}, Row{"", down, "0"},
          Row{"abc", up, "1"}, Row{"2.5", down, "1.5"}, Row{"1,75", down, "0.75"},
          Row{"0.6", down, "0"}, Row{"1.3", up, "2.25"}, Row{"1.15", down, "0.25"},
          Row{"1.125", down, "0.25"}, // half a quarter, away from zero
          Row{"23.5", up, "24"}, Row{"24", up, "24"}, Row{"100", down, "24"}, Row{"-5", up, "0"},
          Row{"inf", down, "24"}, Row{"-inf", up, "0"}, Row{"nan", up, "0"}, Row{" 3 ", up, "4"}}) {
        SCOPED_TRACE(std::string(row.text) + (row.direction == up ? " up" : " down"));
        EXPECT_EQ(AmountText::stepped(row.text, row.direction), row.stepped);
    }
}

} // namespace quillmere
