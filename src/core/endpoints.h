#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

namespace core {

// Where the public services are: "endpoints.cfg" in the program's folder. The one that comes with
// the program names none.
struct Endpoints {
  std::string molva1;    // "MOLVA-1": host of the default node
  std::string nodeList;  // "Node List"
  std::string data;      // "Data"
  std::string version;   // "Version"

  bool operator==(const Endpoints&) const = default;
};

// A key that is not there is empty; others are ignored. Values lose the blanks around them.
Endpoints ParseEndpoints(std::string_view text);

// All empty if there is no such file in that folder, or it can't be read.
Endpoints ReadEndpoints(platform::Files& files, const std::string& folder);

}  // namespace core
