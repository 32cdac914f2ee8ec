#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The files of the members of LoTW and eQSL. Text in, calls out; the calls point into the text.
namespace spots {

// Several times what the lists hold; of a longer file the first calls count.
inline constexpr std::size_t kMostMembers = 1'000'000;
// What is longer is no call.
inline constexpr std::size_t kLongestMember = 32;

struct LotwFile {
  std::vector<std::string_view> calls;
  std::size_t skipped = 0;  // columns that are marked as no call to list
  bool whole = true;        // it ends where it should
};
// Nothing if it is not such a file, or one that is damaged.
std::optional<LotwFile> ParseLotw(std::string_view text);

struct EqslFile {
  std::string_view title;
  std::vector<std::string_view> calls;
  bool sorted = false;  // was rewritten with its calls in order
  bool whole = true;    // all its calls are here: as many as it says, if it says so
};
// The text is in upper case. Nothing if it is not such a file. `calls` of a file as it was fetched
// come sorted by their bytes.
std::optional<EqslFile> ParseEqsl(std::string_view text);

// The sorted form, with which the next start needs no sort.
std::string FormatEqsl(const EqslFile& file);

}  // namespace spots
