#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace spots {

// A text of many lines, each of which begins with a call and a blank, or is a call alone. The lines
// are as good in any order as in that of their calls.
class CallList {
 public:
  // What stands beyond is not read.
  static constexpr std::size_t kMostBytes = std::size_t{16} << 20;

  // In place of what was there before. Lines may end in CR LF or LF.
  void Read(std::string text);

  // The first line of that call, counted from 1; 0 if there is none. Case counts.
  std::size_t FindCall(std::string_view call) const;

 private:
  struct Line {
    std::uint32_t start;
    std::uint32_t length;  // of the call
    std::uint32_t number;
  };

  std::string_view CallAt(const Line& line) const;

  std::string text_;
  std::vector<Line> byCall_;
};

}  // namespace spots
