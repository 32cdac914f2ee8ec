#pragma once

#include <string_view>

#include "spots/node_facts.h"
#include "spots/spot.h"
#include "spots/spot_date.h"
#include "spots/word_facts.h"

namespace spots {

inline constexpr std::string_view kDxLineStart = "DX de ";

// Reads a node's plain line,
//   DX de DL1ABC:    14025.0  3Y0J         CW up 2                        2210Z JN58
// into the record, whose other fields stay as they are. False for a line that is none; then what
// the record holds is of no use. Total: any bytes may come. A frequency that is no number is 0.
//
// Two bent forms are read as well: a spotter that fills the columns up to the frequency
// ("DX de EA8/DF4UE-#:21149.0"), and one that has lost its colon.
//
// The time is the last word like "2210Z"; what stands around it is read as added_words.h says.
bool ParseDxLine(std::string_view line, const NodeFacts& node, const WordFacts& words,
                 const Moment& now, Spot& spot);

}  // namespace spots
