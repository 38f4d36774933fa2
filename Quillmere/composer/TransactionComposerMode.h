#pragma once

#include <string_view>

namespace quillmere {

/// What the composer is opened for.
enum class TransactionComposerMode {
    add,
    take,
};

[[nodiscard]] std::string_view rawValue(TransactionComposerMode mode);
[[nodiscard]] std::string_view title(TransactionComposerMode mode);
[[nodiscard]] std::string_view subtitle(TransactionComposerMode mode);
/// Symbol name of the header and of the save button.
[[nodiscard]] std::string_view systemImage(TransactionComposerMode mode);
[[nodiscard]] std::string_view saveTitle(TransactionComposerMode mode);

} // namespace quillmere
