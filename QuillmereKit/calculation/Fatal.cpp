#include "QuillmereKit/calculation/Fatal.h"

#include <cstdlib>
#include <iostream>

namespace quillmere {

void fatal(std::string_view message) {
    std::cerr << "Quillmere: fatal error: " << message << '\n' << std::flush;
    std::abort();
}

} // namespace quillmere
