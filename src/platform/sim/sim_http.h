#pragma once

#include <limits>
#include <map>
#include <string>
#include <vector>

#include "platform/http.h"

namespace platform::sim {

// The web as the test writes it. What stands nowhere is on a host that is not found.
class SimHttp : public Http {
 public:
  struct Page {
    std::string bytes;
    int status = 200;
    Fault fault = Fault::None;  // instead of any answer
    // It breaks off behind that many bytes.
    std::size_t brokenAfter = std::numeric_limits<std::size_t>::max();
    bool silent = false;      // never answers
    bool tellsLength = true;  // before its bytes
  };

  std::map<std::string, Page> pages;  // by address
  Milliseconds latency{20};           // of every piece
  std::size_t largestPiece = 1000;

  std::vector<std::string> asked;  // addresses, in their order
  int open = 0;                    // transfers that run now

  Task<Answer> Get(Request request) override;
};

}  // namespace platform::sim
