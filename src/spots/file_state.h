#pragma once

#include <string_view>

#include "platform/files.h"

// What became of a file that is read at the start.
namespace spots {

enum class FileState {
  Read,        // or empty, where that is as good
  Missing,     // as most are at first
  Unreadable,  // it is there, and can't be read
  TooLong,     // what is behind the limit doesn't count
  Damaged,     // what it holds is not what it should be, or not all of it
  SetAside,    // it is good again; what could not be taken from it is kept beside it
};

FileState StateOf(platform::Files::Fault fault);

// Whether the last line of quoted fields has been cut off in the middle of one.
bool IsTorn(std::string_view text);

}  // namespace spots
