#pragma once

#include <string>
#include <vector>

#include "platform/browser.h"

namespace platform::sim {

// Keeps what it was asked to show.
class SimBrowser : public Browser {
 public:
  std::vector<std::string> opened;
  bool isThere = true;  // otherwise nothing can be shown

  bool Open(const std::string& address) override {
    if (!isThere || !(address.starts_with("http://") || address.starts_with("https://")))
      return false;
    opened.push_back(address);
    return true;
  }
};

}  // namespace platform::sim
