#pragma once

#include <string_view>

#include "spots/node_facts.h"
#include "spots/spot.h"
#include "spots/word_facts.h"

// The words that nodes add to a spot's comment: a country, a state, a zone, a grid. Total.
namespace spots {

// What stands between the call and the time of a live line, up to the time itself. A word that the
// node has added goes into its field, the rest is the comment.
//   - A DXSpider adds a grid, a state, or a zone with one blank behind it.
//   - Others add a country or a state of up to five characters, with two blanks before it and one
//     behind it. Only a state that goes with the call, and a prefix of the country table, count.
//   - Without that table any such word is a country.
void ReadComment(std::string_view text, const NodeFacts& node, const WordFacts& words, Spot& spot);

// The same in a row of a list of spots, between the time and the "<" before the spotter. A
// DXSpider adds nothing there.
void ReadListComment(std::string_view text, const NodeFacts& node, const WordFacts& words,
                     Spot& spot);

// What stands behind the time of a live line: of the spotter.
void ReadOrigText(std::string_view text, const NodeFacts& node, const WordFacts& words, Spot& spot);

}  // namespace spots
