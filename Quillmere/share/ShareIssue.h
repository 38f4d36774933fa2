#pragma once

#include <exception>

namespace quillmere {

class AppState;

/// The issues that a failed export raises, worded after what went wrong.
namespace ShareIssue {

/// The export could not be written into the temporary folder.
void reportUnwritten(AppState& appState, const std::exception& error);

/// The export could not be put where the user said.
void reportUnsaved(AppState& appState, const std::exception& error);

} // namespace ShareIssue

} // namespace quillmere
