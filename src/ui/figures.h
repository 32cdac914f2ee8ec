#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

namespace ui {

// A count as the window shows it: "2,231".
QString Grouped(std::uint64_t count);
// The same of digits that the rules give. Anything else is left as it is, in one line.
QString Grouped(std::string_view digits);

}  // namespace ui
