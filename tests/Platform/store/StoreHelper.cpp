// A program of its own that saves reminders: <file> <prefix> <count>, with one save each. It writes
// a line with a reminder's title once the save is durable. A line of input starts it.

#include "tests/Platform/store/StoreTest.h"

#include <iostream>
#include <string>

using namespace platform::store;
using namespace platform::store::test;

int main(int argc, char** argv) {
    if (argc != 4) {
        return 2;
    }
    const std::string prefix = argv[2];
    const int count = std::stoi(argv[3]);
    const auto store =
        Store::open(testSchema(), {.file = argv[1], .busyTimeoutMilliseconds = 60000});
    const auto context = store->makeContext(environment());
    std::cout << "open" << std::endl;
    std::cin.get();
    for (int i = 0; i < count; ++i) {
        const std::string title = prefix + std::to_string(i);
        addReminder(*context, title, 1);
        if (Reminder* shared = findTitle(*context, "shared")) {
            shared->setMinutes(i);
        }
        context->save();
        std::cout << title << std::endl;
    }
    return 0;
}
