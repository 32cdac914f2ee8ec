#include "spots/county.h"

#include <algorithm>
#include <string_view>

namespace spots {

bool RejectCounty(const Spot& spot, const core::Settings& settings) {
  const std::string_view call = spot.DxCall;
  const std::size_t slash = call.find('/');
  if (!settings.RejectCounties || slash == std::string_view::npos) return false;
  const std::string_view county = call.substr(slash + 1);
  return county.size() >= 3 && county != "QRP" &&
         std::all_of(county.begin(), county.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

}  // namespace spots
