#pragma once

#include <string_view>

#include "spots/node_facts.h"
#include "spots/spot.h"

// The readers of the extended lines, whose fields carets part. Total: any bytes may come. A line
// that makes no spot leaves the record as it was.
namespace spots {

inline constexpr std::string_view kAr17Start = "AR17^";
inline constexpr std::string_view kZv11Start = "ZV11^";

enum class LineOutcome {
  Spot,        // the record is filled
  None,        // no spot, and nothing to tell
  FieldError,  // the number of fields is wrong, which is counted
};

// AR17^, with 19 fields exactly.
LineOutcome ParseAr17Line(std::string_view line, Spot& spot);

// ZV11^. Fewer than 15 fields are an error; fewer than 18 make no spot. On an own node the line of
// a spot that is fresh there ends in an empty field: ExpandedLine tells. With `keepsGrids`, as on
// a DXSpider node, grid squares are cut to four characters.
LineOutcome ParseZV11Line(std::string_view line, const NodeFacts& node, bool keepsGrids,
                          Spot& spot);

// A country without what stands before its last dash, and without what a bracket begins.
std::string_view CleanCtyField(std::string_view text);

}  // namespace spots
