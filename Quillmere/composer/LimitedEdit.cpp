#include "Quillmere/composer/LimitedEdit.h"

#include "Platform/text/Characters.h"

#include <algorithm>
#include <string>

namespace quillmere {

namespace {

QString firstCharacters(const QString& text, std::size_t count) {
    const std::string utf8 = text.toStdString();
    return QString::fromUtf8(platform::firstCharacters(utf8, count));
}

std::size_t count(const QString& text) {
    return platform::characterCount(text.toStdString());
}

// The part of `before` in front of what the edit put in.
qsizetype commonPrefix(const QString& before, const QString& after, qsizetype longest) {
    const auto* const end =
        std::mismatch(before.begin(), before.begin() + longest, after.begin()).first;
    const qsizetype length = end - before.begin();
    const bool splitsPair = length > 0 && before[length - 1].isHighSurrogate();
    return splitsPair ? length - 1 : length;
}

} // namespace

EditedText limitedEdit(const QString& before, const EditedText& after, std::size_t limit) {
    if (count(after.text) <= limit) {
        return after;
    }
    const qsizetype cursor = std::clamp<qsizetype>(after.cursor, 0, after.text.size());
    const QString tail = after.text.sliced(cursor);
    if (before.endsWith(tail)) {
        const qsizetype start =
            commonPrefix(before, after.text, std::min(before.size() - tail.size(), cursor));
        const QString head = after.text.first(start);
        const QString added = after.text.sliced(start, cursor - start);
        const std::size_t kept = count(head + tail);
        for (std::size_t room = limit - std::min(limit, kept) + 1; room-- > 0;) {
            const QString fitting = firstCharacters(added, room);
            const QString text = head + fitting + tail;
            if (count(text) <= limit) {
                return {text, start + fitting.size()};
            }
        }
    }
    const QString text = firstCharacters(after.text, limit);
    return {text, std::min(cursor, text.size())};
}

} // namespace quillmere
