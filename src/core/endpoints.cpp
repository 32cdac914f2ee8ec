#include "core/endpoints.h"

#include <array>
#include <utility>

#include "core/quoted.h"
#include "core/text.h"

namespace core {
namespace {

constexpr std::array<std::pair<std::string_view, std::string Endpoints::*>, 4> kKeys = {
    {{"MOLVA-1", &Endpoints::molva1},
     {"Node List", &Endpoints::nodeList},
     {"Data", &Endpoints::data},
     {"Version", &Endpoints::version}}};

}  // namespace

Endpoints ParseEndpoints(std::string_view text) {
  Endpoints endpoints;
  while (!text.empty()) {
    const RecordPair record = SplitRecord(TakeLine(text));
    for (const auto& [key, member] : kKeys)
      if (record.first == key) endpoints.*member = Trim(record.second);
  }
  return endpoints;
}

Endpoints ReadEndpoints(platform::Files& files, const std::string& folder) {
  const auto content = files.Read(folder + "/endpoints.cfg");
  return ParseEndpoints(content.bytes);
}

}  // namespace core
