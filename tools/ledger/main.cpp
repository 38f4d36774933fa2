// Reads and changes a store from the command line, through the Kit as the program does:
//
//     ledger FILE list
//         every change, oldest first: minutes and note
//     ledger FILE add MINUTES [NOTE [DAYS]]
//         records a change dated now, or that many days ago
//     ledger FILE fill COUNT [MINUTES]
//         sets the store up and adds that many changes of past years, of various minutes or of
//         these, with the note of their sum that the program makes in its first seconds
//     ledger FILE balance
//         the balance as the program shows it
//     ledger FILE check
//         checks that the file is whole
//
// End-to-end tests are another process of the system with it, and benchmarks make their stores.

#include "Platform/base/Clock.h"
#include "Platform/calendar/Calendar.h"
#include "Platform/store/Store.h"
#include "QuillmereKit/maintenance/StorePreparation.h"
#include "QuillmereKit/maintenance/StoredBalance.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/rules/DurationFormatting.h"
#include "QuillmereKit/transactions/TimeBankTransactionController.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <exception>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {
namespace {

using Arguments = std::span<const std::string_view>;
using platform::store::Context;

constexpr double secondsPerDay = 86400;
constexpr double filledDays = 2000;
constexpr std::array<std::string_view, 5> filledNotes = {"Release evening", "Dentist", "Left early",
                                                         "Customer call from home", ""};

template <typename Number>
Number number(std::string_view text) {
    Number value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        throw std::invalid_argument("not a number: " + std::string(text));
    }
    return value;
}

void list(Context& context, Arguments) {
    const auto byDate =
        platform::store::Sort<BalanceAdjustment>{}.by<&BalanceAdjustmentValues::date>();
    for (const BalanceAdjustment* change : context.fetch<BalanceAdjustment>({}, byDate)) {
        // Records of no minutes are marks, not changes.
        if (change->minutes() != 0) {
            std::cout << change->minutes() << ' ' << change->note() << '\n';
        }
    }
}

void add(Context& context, Arguments arguments) {
    const double daysAgo = arguments.size() > 2 ? number<double>(arguments[2]) : 0;
    TimeBankTransactionController::record(
        number<std::int64_t>(arguments[0]), context.clock().now() - secondsPerDay * daysAgo,
        arguments.size() > 1 ? arguments[1] : "", "manual", context);
}

std::int64_t filledMinutes(std::int64_t i) {
    return i % 3 == 2 ? -(i % 480) - 1 : i % 240 + 1;
}

/// The first change lies `filledDays` back, the last a moment ago; where they vary, every third
/// takes time.
void fill(Context& context, Arguments arguments) {
    TimeBankSettings& settings = StorePreparation::prepare(context);
    StorePreparation::completeOnboarding(context, settings);
    const std::int64_t count = number<std::int64_t>(arguments[0]);
    const double now = context.clock().now().secondsSince1970;
    const double step = filledDays * secondsPerDay / static_cast<double>(count);
    for (std::int64_t i = 0; i < count; ++i) {
        const platform::Instant date{now - static_cast<double>(count - i) * step};
        const std::int64_t minutes =
            arguments.size() > 1 ? number<std::int64_t>(arguments[1]) : filledMinutes(i);
        context.insert(std::make_unique<BalanceAdjustment>(
            platform::Uuid::random(), date, minutes,
            std::string(filledNotes[static_cast<std::size_t>(i) % filledNotes.size()]),
            BalanceAdjustmentKind::manual, date, date));
    }
    context.save();
    StoredBalance sum(context);
    (void)sum.figures(context.calendar().startOfDay(context.clock().now()), context.clock().now());
    sum.remember();
}

void balance(Context& context, Arguments) {
    const TimeBankSettings& settings = StorePreparation::prepare(context);
    const auto upToNow =
        platform::store::Filter<BalanceAdjustment>{}.where<&BalanceAdjustmentValues::date>(
            platform::store::Comparison::lessOrEqual, context.clock().now());
    const std::int64_t minutes =
        settings.startingBalanceMinutes() +
        context.sum<BalanceAdjustment, &BalanceAdjustmentValues::minutes>(upToNow);
    std::cout << DurationFormatting::clock(static_cast<double>(minutes) * 60, true) << '\n';
}

void check(Context& context, Arguments) {
    context.store().verify();
    std::cout << "ok\n";
}

struct Command {
    std::size_t fewestArguments;
    std::function<void(Context&, Arguments)> run;
};

const std::map<std::string_view, Command> commands = {{"list", {0, list}},
                                                      {"add", {1, add}},
                                                      {"fill", {1, fill}},
                                                      {"balance", {0, balance}},
                                                      {"check", {0, check}}};

int run(Arguments arguments) {
    const auto command = arguments.size() < 2 ? commands.end() : commands.find(arguments[1]);
    if (command == commands.end() || arguments.size() - 2 < command->second.fewestArguments) {
        std::cerr << "usage: ledger FILE list | add MINUTES [NOTE [DAYS]] | fill COUNT "
                     "[MINUTES] | balance | check\n";
        return 2;
    }
    const platform::SystemClock clock;
    const platform::FixedCalendarSource calendars(
        platform::Calendar(platform::TimeZone::system(), platform::Region::system()));
    const auto store =
        platform::store::Store::open(QuillmerePersistence::schema(), {.file = arguments[0]});
    const auto context = store->makeContext({clock, calendars});
    command->second.run(*context, arguments.subspan(2));
    return 0;
}

} // namespace
} // namespace quillmere

int main(int argc, char** argv) {
    try {
        const std::vector<std::string_view> arguments(argv + 1, argv + argc);
        return quillmere::run(arguments);
    } catch (const std::exception& error) {
        std::cerr << "ledger: " << error.what() << '\n';
        return 1;
    }
}
