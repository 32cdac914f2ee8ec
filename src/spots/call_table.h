#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace spots {

// Some hundred thousand calls in one piece of text and one table of offsets into it.
class CallTable {
 public:
  // Takes the calls over in their order: each not empty and free of line ends, all of them together
  // below 4 GB; what would go beyond is left out. A call that stands twice counts twice.
  explicit CallTable(const std::vector<std::string_view>& calls = {});

  std::size_t Count() const { return count_; }
  bool Empty() const { return count_ == 0; }
  // Byte for byte, in constant time.
  bool Contains(std::string_view call) const;
  // All calls, a line each, in their order.
  std::string Lines(std::string_view lineEnd) const;
  // What the table takes, in bytes.
  std::size_t Memory() const;

 private:
  bool IsAt(std::uint32_t offset, std::string_view call) const;
  std::size_t SlotOf(std::string_view call) const;
  void Index();

  std::string text_;                  // each call with a line feed behind it
  std::vector<std::uint32_t> slots_;  // offset + 1; 0: free
  std::size_t count_ = 0;
};

}  // namespace spots
