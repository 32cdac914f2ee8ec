#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace practice_node {

// Cuts what a caller sends into lines. A line ends with LF; a CR, and every other control
// character, is dropped. What goes beyond kLongestLine bytes is dropped too, up to the line's end.
class LineReader {
 public:
  static constexpr std::size_t kLongestLine = 512;

  // The lines that these bytes complete.
  std::vector<std::string> Take(std::string_view bytes);

 private:
  std::string line_;
};

}  // namespace practice_node
