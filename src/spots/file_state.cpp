#include "spots/file_state.h"

#include <algorithm>

namespace spots {

FileState StateOf(platform::Files::Fault fault) {
  using Fault = platform::Files::Fault;
  if (fault == Fault::None) return FileState::Read;
  return fault == Fault::NotFound ? FileState::Missing : FileState::Unreadable;
}

bool IsTorn(std::string_view text) {
  const std::string_view last = text.substr(text.rfind('\n') + 1);  // all of it without a line end
  return std::count(last.begin(), last.end(), '"') % 2 != 0;
}

}  // namespace spots
