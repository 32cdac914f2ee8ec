#include "practice_node/line_reader.h"

#include <utility>

namespace practice_node {

std::vector<std::string> LineReader::Take(std::string_view bytes) {
  std::vector<std::string> lines;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (byte == '\n') {
      lines.push_back(std::exchange(line_, {}));
    } else if (value >= ' ' && value != 0x7F && line_.size() < kLongestLine) {
      line_ += byte;
    }
  }
  return lines;
}

}  // namespace practice_node
