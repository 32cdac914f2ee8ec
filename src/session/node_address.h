#pragma once

#include <functional>
#include <string>

#include "core/settings.h"

namespace session {

// The node to take while none is chosen.
struct DefaultNode {
  std::string call;
  std::string host;
  std::string port;
};

// Where the chosen node is: its host name, or the address at which it was reached last. The two
// take turns while neither leads to a node that says who it is.
class NodeAddress {
 public:
  struct Needs {
    std::function<DefaultNode()> defaultNode;
    std::function<void()> delayedWriteCfg;
  };

  // The settings outlive it.
  NodeAddress(core::Settings& settings, Needs needs);

  // Takes the default node while none is chosen, or the chosen one has no host.
  void EnsureNode();
  // The name or the address for the next attempt.
  std::string ChooseHost();
  // A node reached at that address has said its call.
  void Learn(const std::string& call, const std::string& address);

 private:
  core::Settings& settings_;
  Needs needs_;
  bool TryHostName = false;
};

}  // namespace session
