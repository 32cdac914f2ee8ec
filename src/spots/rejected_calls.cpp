#include "spots/rejected_calls.h"

namespace spots {

void RejectedCalls::Clear() {
  exact_.clear();
  wildcards_.clear();
}

void RejectedCalls::Add(std::string_view entry) {
  const std::size_t place = exact_.size();
  exact_.emplace(entry, place);
  const std::size_t star = entry.find('*');
  if (star == std::string_view::npos) return;
  const bool ending = star == 0;
  wildcards_.push_back(
      {place, ending, std::string(ending ? entry.substr(1) : entry.substr(0, star))});
}

RejectedCalls::Place RejectedCalls::Exact(std::string_view call) const {
  const auto found = exact_.find(call);
  return found == exact_.end() ? Place() : found->second;
}

RejectedCalls::Place RejectedCalls::FirstMatch(std::string_view call) const {
  const Place exact = Exact(call);
  for (const Wildcard& wildcard : wildcards_) {
    if (exact && *exact < wildcard.place) break;
    if (wildcard.Fits(call)) return wildcard.place;
  }
  return exact;
}

}  // namespace spots
