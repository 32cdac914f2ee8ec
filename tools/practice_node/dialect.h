#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "practice_node/profile.h"
#include "practice_node/spot_lines.h"

namespace practice_node {

// The software that a node plays; --all opens the ports in this order.
enum class Kind { ArCluster, Spider, Clx, DxNet, WinCluster, Zelva, Skimmer };
inline constexpr std::size_t kKinds = 7;

// A line for users of whom a field isn't known.
struct Hint {
  Field missing;
  std::string_view text;
};

// How a dialect speaks of a field. Empty where it doesn't.
struct FieldWords {
  std::string_view label;   // in the report on a station, with its colon
  std::string_view answer;  // to setting it; the new value follows
};

// The words of one cluster software. Lines of a text are parted by LF. In all of them stand
//   %C the caller, %M the node, %D the date, %T the time, %V the version, %H the caller's name,
//   %I his name or else his call, %U how long the node is up, %N users on the node,
//   %W the word that wasn't understood.
struct Dialect {
  Kind kind;
  std::string_view option;    // "spider"
  std::string_view software;  // "DXSpider"
  std::string_view greeting;  // in front of the login prompt
  std::string_view loginPrompt;
  std::string_view badCall;
  std::string_view badPassword;
  std::string_view welcome;
  std::span<const Hint> hints;
  std::string_view prompt;
  std::string_view unknownCommand;
  std::string_view farewell;
  std::string_view filters;  // the answer to "sh/filter"
  // The answer to a show-spots command that finds none; %W is what was asked for. May be empty.
  std::string_view nothingFound = "*** no records found";
  std::string_view replaced;      // to a session whose call logs in once more; may be empty
  std::string_view stationLabel;  // the first label of the report on a station
  std::array<FieldWords, kFields> fields;
  bool lowerCase = false;      // writes calls so
  Shape shape = Shape::Plain;  // of spots
  bool timeSlots = false;      // beside the time of a spot there is room for a word each
  bool dashInRanges = true;    // takes "3500-4000", not "3500/4000" alone
  bool zoneInSpots = false;    // spot lines end in the zone of the DX station
  bool bells = false;          // rings two at the end of a spot, for those who want it
  bool oldestFirst = false;    // in lists of spots
  std::size_t listCall = 11;   // column of the call in those lists
};

const Dialect& DialectOf(Kind kind);
std::span<const Dialect, kKinds> Dialects();  // in the order of Kind
// What stands in front of a switch in the reports of a dialect; empty if it doesn't have that one.
std::string_view LabelOf(const ToggleWords& words, Kind kind);
std::optional<Kind> KindNamed(std::string_view option);

// How the versions of DXSpider differ.
struct SpiderVersion {
  std::string_view number;  // "1.57"
  std::string_view words;   // for %V
  bool echoes;              // what is sent comes back as a line until "unset/echo"
  bool promptsFirst;        // lists come behind the prompt, with none of their own
  bool promptsUnasked;      // after minutes without output
  bool fitsLabels;          // the report's labels are aligned to its longest one
  unsigned patience;        // unknown commands in a row until it hangs up; 0: any number
};

inline constexpr std::array<SpiderVersion, 2> kSpiderVersions = {{
    {"1.57", "V1.57 build 441", false, true, true, true, 21},
    {"1.55", "V1.55 build 231 on linux", true, false, false, false, 0},
}};

}  // namespace practice_node
