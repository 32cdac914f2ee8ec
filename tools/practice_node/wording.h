#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace practice_node {

// What a letter behind "%" stands for.
struct Meaning {
  char letter;
  std::string text;
};

// Puts the meanings in place of "%" and their letters. Any other "%" stays as it is.
std::string Expand(std::string_view pattern, std::initializer_list<Meaning> meanings);

// "20-Nov-2026"; a day below 10 with a blank in front.
std::string DateText(platform::UtcTime time);
// "2148Z"
std::string TimeText(platform::UtcTime time);

// Blanks behind or in front of a text, up to that width. Longer text stays whole.
std::string PadRight(std::string_view text, std::size_t width);
std::string PadLeft(std::string_view text, std::size_t width);

// What can be repeated to a caller of what he sent: the beginning, control characters taken out.
std::string Quotable(std::string_view text);

}  // namespace practice_node
