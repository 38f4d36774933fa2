#include "Quillmere/actions/ActionFailure.h"

#include "Platform/store/StoreError.h"
#include "QuillmereKit/actions/AdjustmentKeyError.h"

namespace quillmere {

namespace {

using platform::store::StoreError;
using platform::store::StoreFault;

// Scripts tell failures apart by these names: frozen.
constexpr auto namePrefix = "dev.vantor.quillmere.Error.";

struct Words {
    const char* name;
    const char* sentence;
};

Words wordsFor(StoreFault fault) {
    switch (fault) {
    case StoreFault::cannotOpen:
        return {"CannotOpen", "The time bank can't be opened."};
    case StoreFault::readOnly:
        return {"ReadOnly", "The time bank can't be changed because its folder is read-only."};
    case StoreFault::diskFull:
        return {"DiskFull", "The time bank can't be changed because the disk is full."};
    case StoreFault::locked:
        return {"Locked", "Another program is using the time bank. Please try again."};
    case StoreFault::damaged:
        return {"Damaged", "The time bank's file is damaged."};
    case StoreFault::foreign:
        return {"Foreign", "The file in the time bank's place belongs to another program."};
    case StoreFault::newerSchema:
        return {"NewerSchema", "The time bank was written by a newer version of Quillmere."};
    case StoreFault::io:
        return {"InputOutput", "The time bank can't be read or written."};
    case StoreFault::notUnique:
    case StoreFault::misuse:
        break;
    }
    return {"Failed", "The time bank can't be changed."};
}

const char* nameFor(AdjustmentKeyError::Reason reason) {
    return reason == AdjustmentKeyError::Reason::standsForOtherAmount ? "KeyStandsForOtherAmount"
                                                                      : "InvalidKey";
}

} // namespace

ActionFailure ActionFailure::of(const std::exception& error) {
    if (const auto* store = dynamic_cast<const StoreError*>(&error)) {
        const Words words = wordsFor(store->fault());
        return {std::string(namePrefix) + words.name, words.sentence, error.what()};
    }
    if (const auto* key = dynamic_cast<const AdjustmentKeyError*>(&error)) {
        return {std::string(namePrefix) + nameFor(key->reason()), error.what(), {}};
    }
    const Words words = wordsFor(StoreFault::misuse);
    return {std::string(namePrefix) + words.name, words.sentence, error.what()};
}

} // namespace quillmere
