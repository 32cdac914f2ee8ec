#pragma once

#include <string>
#include <string_view>

#include "spots/spot.h"

namespace spots {

// A spot as a line of the spot log: 18 fields and a "~". The date is that of the file.
//
// A field never holds a separator of either form, a quote or a control character: '"', "," and "^"
// are escaped as "%22", "%2C" and "%5E", control characters become blanks.
enum class LogForm : char {
  Daily = ',',    // of the files of the days
  Scratch = '^',  // of the scratch copy, and of older files
};

// Adds the line, with its line end, to `out`.
void AppendLogLine(const Spot& spot, LogForm form, std::string& out);

// Reads a line without its line end, of either form, into `spot`. What an older line doesn't hold
// is empty, and so is all else but the date, which is left as it is. SpotMinute is not computed.
// False for what is no spot: too short or too long a line, one with control characters, without a
// time of the day or a frequency, or with calls that no accepted spot has.
bool ParseLogLine(std::string_view line, Spot& spot);

}  // namespace spots
