#pragma once

#include <array>
#include <string_view>

#include "platform/files.h"

// What became of the files that are read at the start.
namespace spots {

enum class FileState {
  Read,        // or empty, where that is as good
  Missing,     // as most are at first
  Unreadable,  // it is there, and can't be read
  TooLong,     // what is behind the limit doesn't count
  Damaged,     // what it holds is not what it should be, or not all of it
};

// `name` is that of a file in the program's folder.
struct FileReport {
  std::string_view name;
  FileState state;
};
using FileReports = std::array<FileReport, 5>;

FileState StateOf(platform::Files::Fault fault);

// Whether the last line of quoted fields has been cut off in the middle of one.
bool IsTorn(std::string_view text);

}  // namespace spots
