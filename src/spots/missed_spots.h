#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "session/dialect.h"

namespace spots {

// What the operator wants to see of the spots that he missed.
struct MissedFilter {
  struct Range {
    double low;  // kHz
    double high;
  };
  std::vector<Range> ranges = {};           // that the bands and modes pass; empty: all
  std::vector<std::string> countries = {};  // of spotters, by their prefixes; empty: any
  bool rejectsCountries = false;            // these are the ones not wanted; else the only ones
};

// The filter in an AR-Cluster's query language, a blank around each word.
std::string WhereExpression(const MissedFilter& filter);

// The request for the last `count` spots; `showDx` is the node's command for lists. Empty where
// there is nothing to ask for: of a Skimmer, of unknown software, and for a count below 1.
std::string MissedSpotsQuery(session::NodeKind kind, std::string_view showDx, int count,
                             const MissedFilter& filter);

}  // namespace spots
