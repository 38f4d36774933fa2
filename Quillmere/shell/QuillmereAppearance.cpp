#include "Quillmere/shell/QuillmereAppearance.h"

namespace quillmere {

std::string_view rawValue(QuillmereAppearance appearance) {
    switch (appearance) {
    case QuillmereAppearance::light:
        return "light";
    case QuillmereAppearance::dark:
        return "dark";
    case QuillmereAppearance::system:
        break;
    }
    return "system";
}

std::string_view title(QuillmereAppearance appearance) {
    switch (appearance) {
    case QuillmereAppearance::light:
        return "Light";
    case QuillmereAppearance::dark:
        return "Dark";
    case QuillmereAppearance::system:
        break;
    }
    return "System";
}

std::optional<bool> QuillmereAppearances::darkOverride(std::string_view storedValue) {
    if (storedValue == rawValue(QuillmereAppearance::dark)) {
        return true;
    }
    if (storedValue == rawValue(QuillmereAppearance::light)) {
        return false;
    }
    return std::nullopt;
}

} // namespace quillmere
