#include "QuillmereKit/records/NoteValidation.h"

#include "Platform/text/Characters.h"
#include "Platform/text/WhiteSpace.h"

namespace quillmere::NoteValidation {

std::string normalized(std::string_view note) {
    return limited(platform::trimmed(note));
}

std::string limited(std::string_view note) {
    return std::string(platform::firstCharacters(note, maximumCharacterCount));
}

} // namespace quillmere::NoteValidation
