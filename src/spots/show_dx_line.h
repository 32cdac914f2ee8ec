#pragma once

#include <string_view>

#include "spots/node_facts.h"
#include "spots/spot.h"
#include "spots/word_facts.h"

namespace spots {

// Whether the line is a row of a list of spots: a frequency of at least 1800 kHz, a date of this
// half of the century, a time.
bool IsShowDxRow(std::string_view line);

// Reads a row that a node's command to show spots gives,
//   14025.0  3Y0J        20-Nov-2026 2116Z CW up 2                     <DL1ABC>
// into the record. False for a line that is none. Total: any bytes may come.
bool ParseShDxLine(std::string_view line, const NodeFacts& node, const WordFacts& words,
                   Spot& spot);

}  // namespace spots
