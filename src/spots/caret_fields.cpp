#include "spots/caret_fields.h"

#include "core/text.h"

namespace spots {

CaretFields::CaretFields(std::string_view line) : line_(line) {
  for (const char byte : line)
    if (byte == '^') ++last_;
  for (std::string_view& field : first_) field = core::ExtractToCharacter('^', line);
}

std::string_view CaretFields::FromEnd(std::size_t number) const {
  if (number > last_) return {};
  std::string_view rest = line_;
  for (; number > 0; --number) rest = rest.substr(0, rest.rfind('^'));
  return rest.substr(rest.rfind('^') + 1);
}

}  // namespace spots
