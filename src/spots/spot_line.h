#pragma once

#include <cstddef>
#include <string_view>

#include "spots/node_facts.h"
#include "spots/spot.h"

// What the readers of spot lines have in common.
namespace spots {

// Nodes send less than a few hundred characters. What is far beyond that is no spot.
inline constexpr std::size_t kLongestLine = 4096;

// Empties what a plain line says nothing of, whatever the line before it said.
void EmptyPlainFields(Spot& spot);

void SetSpotter(std::string_view call, const NodeFacts& node, Spot& spot);
void SetTime(std::string_view hhmm, Spot& spot);

}  // namespace spots
