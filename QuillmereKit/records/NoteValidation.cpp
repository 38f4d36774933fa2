#include "QuillmereKit/records/NoteValidation.h"

#include "Platform/text/Characters.h"
#include "Platform/text/WhiteSpace.h"

namespace quillmere::NoteValidation {

std::string normalized(std::string_view note) {
    return std::string(normalizedPart(note));
}

std::string_view normalizedPart(std::string_view note) {
    return platform::firstCharacters(platform::trimmed(note), maximumCharacterCount);
}

std::string limited(std::string_view note) {
    return std::string(platform::firstCharacters(note, maximumCharacterCount));
}

} // namespace quillmere::NoteValidation
