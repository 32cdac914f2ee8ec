#pragma once

#include "platform/browser.h"

namespace platform::qt {

// The desktop's own choice of a browser.
class QtBrowser : public Browser {
 public:
  bool Open(const std::string& address) override;
};

}  // namespace platform::qt
