#include "Quillmere/composer/TransactionComposerMode.h"

namespace quillmere {

namespace {

struct Texts {
    std::string_view rawValue;
    std::string_view title;
    std::string_view subtitle;
    std::string_view systemImage;
    std::string_view saveTitle;
};

constexpr Texts add{"add", "Add time", "Worked extra", "plus", "Save added time"};
constexpr Texts take{"take", "Take flex time", "Use time from your bank", "minus",
                     "Save flex time"};

constexpr const Texts& texts(TransactionComposerMode mode) {
    return mode == TransactionComposerMode::add ? add : take;
}

} // namespace

std::string_view rawValue(TransactionComposerMode mode) {
    return texts(mode).rawValue;
}

std::string_view title(TransactionComposerMode mode) {
    return texts(mode).title;
}

std::string_view subtitle(TransactionComposerMode mode) {
    return texts(mode).subtitle;
}

std::string_view systemImage(TransactionComposerMode mode) {
    return texts(mode).systemImage;
}

std::string_view saveTitle(TransactionComposerMode mode) {
    return texts(mode).saveTitle;
}

} // namespace quillmere
