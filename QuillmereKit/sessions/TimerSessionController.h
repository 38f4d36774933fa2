#pragma once

#include "Platform/base/Instant.h"
#include "Platform/store/Context.h"

namespace quillmere {

class WorkEntry;

/// Running work sessions: entries without an end, of which there is at most one. Operations without
/// state, on the context's thread. A failing fetch or save is passed on as its `StoreError`, with
/// what was changed before it still pending.
namespace TimerSessionController {

/// Keeps the running entry that started first (of equals the one with the smaller identifier), not
/// later than `at`, and deletes the others. Answers it, or null when none is running. Saves only
/// with `saveChanges`, and only when something changed.
WorkEntry* reconcileRunningEntries(platform::store::Context& context, platform::Instant at,
                                   bool saveChanges);

/// The running entry after a reconciliation that is saved.
[[nodiscard]] WorkEntry* runningEntry(platform::store::Context& context, platform::Instant at);

/// Starts a session at the moment. False, with nothing started, when one is running.
bool start(platform::store::Context& context, platform::Instant at);

/// Ends the running session at the moment. False when none is running.
bool stop(platform::store::Context& context, platform::Instant at);

/// Ends the running session or starts one; whether one is running now.
bool toggle(platform::store::Context& context, platform::Instant at);

} // namespace TimerSessionController

} // namespace quillmere
