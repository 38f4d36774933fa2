#pragma once

#include "Platform/store/Store.h"
#include "tests/Platform/files/TestFolder.h"
#include "tests/Platform/store/Reminder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace platform::store::test {

inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

inline std::string contents(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline ContextEnvironment environment() {
    static const ManualClock clock(Instant{0});
    static const FixedCalendarSource calendars(
        Calendar(TimeZone::utc(), Region::fromLocale("en_US")));
    return {clock, calendars};
}

inline Reminder& addReminder(Context& context, std::string title, std::int64_t minutes = 0,
                             Instant due = {0}) {
    auto reminder = std::make_unique<Reminder>();
    reminder->setTitle(std::move(title));
    reminder->setMinutes(minutes);
    reminder->setDue(due);
    return context.insert(std::move(reminder));
}

inline Reminder* findTitle(Context& context, const std::string& title) {
    const auto found = context.fetch<Reminder>(
        Filter<Reminder>{}.where<&ReminderValues::title>(Comparison::equal, title));
    return found.empty() ? nullptr : found.front();
}

/// The titles of all reminders, in order and separated by spaces.
inline std::string titles(Context& context) {
    std::string all;
    for (const Reminder* reminder :
         context.fetch<Reminder>({}, Sort<Reminder>{}.by<&ReminderValues::title>())) {
        all += (all.empty() ? "" : " ") + reminder->values().title;
    }
    return all;
}

/// The fault an action ends with; nothing when it succeeds.
template <class Action>
std::optional<StoreFault> faultOf(Action action) {
    try {
        action();
    } catch (const StoreError& error) {
        return error.fault();
    }
    return std::nullopt;
}

/// A store in a folder of its own.
class StoreTest : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path file() const { return folder_.path() / "data/Test.sqlite"; }
    [[nodiscard]] std::shared_ptr<Store> open() const {
        return Store::open(testSchema(), {.file = file()});
    }
    [[nodiscard]] std::unique_ptr<Context> openContext() const {
        return open()->makeContext(environment());
    }

    TestFolder folder_;
};

} // namespace platform::store::test
