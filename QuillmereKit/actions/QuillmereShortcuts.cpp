#include "QuillmereKit/actions/QuillmereShortcuts.h"

#include "Platform/text/LetterCase.h"
#include "Platform/text/WhiteSpace.h"

#include <algorithm>

namespace quillmere::QuillmereShortcuts {

namespace {

constexpr std::array<Shortcut, 2> shortcuts{
    {{"add-30-minutes",
      30,
      {"Add 30 minutes in ${applicationName}", "Add flex time with ${applicationName}"},
      "Add 30 minutes",
      "plus"},
     {"subtract-30-minutes",
      -30,
      {"Subtract 30 minutes in ${applicationName}", "Use flex time with ${applicationName}"},
      "Subtract 30 minutes",
      "minus"}}};

/// Texts are in lower case.
bool hasWordBeginning(std::string_view text, std::string_view beginning) {
    return std::ranges::any_of(
        platform::splitAtWhiteSpace(text),
        [beginning](std::string_view word) { return word.starts_with(beginning); });
}

/// What was typed, in lower case and by words.
class Query {
public:
    explicit Query(std::span<const std::string> terms) {
        for (const std::string& term : terms) {
            const std::string text = platform::lowercasedForComparison(term);
            for (const std::string_view word : platform::splitAtWhiteSpace(text)) {
                words_.emplace_back(word);
            }
        }
    }

    [[nodiscard]] bool matches(std::string_view text) const {
        const std::string lowercased = platform::lowercasedForComparison(text);
        return !words_.empty() && std::ranges::all_of(words_, [&](const std::string& word) {
            return hasWordBeginning(lowercased, word);
        });
    }

private:
    std::vector<std::string> words_;
};

} // namespace

std::span<const Shortcut> all() {
    return shortcuts;
}

const Shortcut* find(std::string_view id) {
    const auto* const found = std::ranges::find(shortcuts, id, &Shortcut::id);
    return found == shortcuts.end() ? nullptr : found;
}

std::string phraseText(std::string_view phrase, std::string_view applicationName) {
    std::string text(phrase);
    const std::size_t token = text.find(applicationNameToken);
    return token == std::string::npos
               ? text
               : text.replace(token, applicationNameToken.size(), applicationName);
}

std::vector<const Shortcut*> matching(std::span<const std::string> terms,
                                      std::string_view applicationName) {
    const Query query(terms);
    std::vector<const Shortcut*> found;
    for (const Shortcut& shortcut : shortcuts) {
        const bool isMeant = query.matches(shortcut.shortTitle) ||
                             std::ranges::any_of(shortcut.phrases, [&](std::string_view phrase) {
                                 return query.matches(phraseText(phrase, applicationName));
                             });
        if (isMeant) {
            found.push_back(&shortcut);
        }
    }
    return found;
}

} // namespace quillmere::QuillmereShortcuts
