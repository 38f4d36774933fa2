#include "QuillmereKit/sessions/TimerSessionController.h"

#include "QuillmereKit/records/WorkEntry.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillmere::TimerSessionController {

namespace {

using platform::Instant;
using platform::store::Comparison;
using platform::store::Context;
using Values = WorkEntryValues;

std::vector<WorkEntry*> runningEntries(Context& context) {
    return context.fetch(
        platform::store::Filter<WorkEntry>{}.where<&Values::endedAt>(Comparison::equal,
                                                                     std::nullopt),
        platform::store::Sort<WorkEntry>{}.by<&Values::startedAt>().by<&Values::id>());
}

/// A session cannot have started in the future.
bool pullToPresent(WorkEntry& entry, Instant at) {
    if (!(entry.startedAt() > at)) {
        return false;
    }
    entry.setStartedAt(at);
    entry.setModifiedAt(at);
    return true;
}

} // namespace

WorkEntry* reconcileRunningEntries(Context& context, Instant at, bool saveChanges) {
    const std::vector<WorkEntry*> running = runningEntries(context);
    if (running.empty()) {
        return nullptr;
    }
    WorkEntry& kept = *running.front();
    const bool moved = pullToPresent(kept, at);
    for (std::size_t i = 1; i < running.size(); ++i) {
        context.remove(*running[i]);
    }
    if (saveChanges && (moved || running.size() > 1)) {
        context.save();
    }
    return &kept;
}

WorkEntry* runningEntry(Context& context, Instant at) {
    return reconcileRunningEntries(context, at, true);
}

bool start(Context& context, Instant at) {
    if (runningEntry(context, at)) {
        return false;
    }
    const Instant createdAt = context.clock().now();
    const Instant modifiedAt = context.clock().now();
    context.insert(std::make_unique<WorkEntry>(platform::Uuid::random(), at, std::nullopt, 0,
                                               std::string{}, createdAt, modifiedAt));
    context.save();
    return true;
}

bool stop(Context& context, Instant at) {
    WorkEntry* running = runningEntry(context, at);
    if (!running) {
        return false;
    }
    running->setEndedAt(at);
    running->setModifiedAt(at);
    context.save();
    return true;
}

bool toggle(Context& context, Instant at) {
    if (runningEntry(context, at)) {
        stop(context, at);
        return false;
    }
    return start(context, at);
}

} // namespace quillmere::TimerSessionController
