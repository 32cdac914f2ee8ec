#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "spots/bearing.h"
#include "spots/file_state.h"

namespace spots {

// The states and provinces of "state.dat" with their headings. Its first line is a heading and the
// second is Alabama's; columns from 1: the code 1 to 2, the name from 4, the latitude 30 to 36, the
// longitude 38 to 44, in degrees, west positive:
//   AL ALABAMA                     32.78   86.83
class StateTable {
 public:
  static constexpr std::size_t kMostRows = 65;
  // Of a longer text only so much counts.
  static constexpr std::size_t kMostBytes = std::size_t{1} << 20;

  struct Row {
    std::string code;
    core::Coordinates position;
    Heading heading;
  };

  // Takes the file's text in place of what was read before. A text whose second line doesn't name
  // Alabama changes nothing: false. Total, and bounded; lines may end in CR LF or LF.
  bool Read(std::string_view text);
  // It has all states and provinces, each with its position.
  bool IsComplete() const;
  // The headings follow it. There is none at first.
  void SetHome(const Home& home);

  // Puts the heading of that code into `current`, or empties it.
  bool FindHeadingState(std::string_view state, Heading& current) const;

  // The lines of the states as they stand in the file, sorted.
  const std::vector<std::string>& cboState() const { return lines_; }
  // In that order. A state that has no position takes the heading of the one before it.
  const std::vector<Row>& StateHeadings() const { return rows_; }
  int StateCount() const { return static_cast<int>(rows_.size()); }

 private:
  void ComputeHeadings();

  Home home_;
  std::vector<std::string> lines_;
  std::vector<Row> rows_;
};

// Reads "state.dat" of the folder into the table. Without one nothing happens. One that lacks a
// state, or a position, is damaged; what it has counts.
FileState ReadState(platform::Files& files, const std::string& folder, StateTable& table);

}  // namespace spots
