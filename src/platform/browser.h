#pragma once

#include <string>

namespace platform {

// The user's browser.
class Browser {
 public:
  virtual ~Browser() = default;
  // Shows an address of the web, and does not wait for it. False if it is no http or https address,
  // or if there is no browser to show it.
  virtual bool Open(const std::string& address) = 0;
};

}  // namespace platform
