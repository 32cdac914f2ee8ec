#pragma once

#include <string>

namespace core {

// Replaces each "%xx" by the byte it names, from the left, a "%" that comes out of it included.
// Ends at the first one that names a byte below `least` or is not hexadecimal; the count of
// replacements.
int RepairEscapes(std::string& text, unsigned least);

}  // namespace core
