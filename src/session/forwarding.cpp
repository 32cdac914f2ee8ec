#include "session/forwarding.h"

#include <algorithm>

namespace session {

void StopLists::Build(std::string_view ownCall) {
  const std::string call(ownCall);
  SuppressPrefixes = {"73 ",
                      "Keyword Filter ",
                      "SH/TNC command error",
                      "No Help available",
                      "Page Length ",
                      "Echoing disabled",
                      "Beeps are now off",
                      "Talk enabled for " + call,
                      "WWV enabled for " + call,
                      "WX enabled for " + call,
                      "Announces enabled for " + call,
                      "DX Spots enabled for " + call,
                      " filter",
                      "Filter ",
                      "Operation successful"};
  SuppressSuffixes = {" deleted for " + call};
}

bool StopLists::Stops(std::string_view line, bool spider) const {
  const auto ends = [line](const std::string& suffix) { return line.ends_with(suffix); };
  const auto begins = [line](const std::string& prefix) { return line.starts_with(prefix); };
  if (spider && std::any_of(SuppressSuffixes.begin(), SuppressSuffixes.end(), ends)) return true;
  return std::any_of(SuppressPrefixes.begin(), SuppressPrefixes.end(), begins);
}

}  // namespace session
