#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "program/conditions.h"
#include "session/session.h"

namespace program {

// Raises the condition that a serial port isn't open although it is wanted, for the TNC's and for
// the local network's, until it opens or isn't wanted any more.
class PortCondition {
 public:
  // The first two outlive it. `choose` opens the form in which ports are chosen.
  PortCondition(Conditions& conditions, session::Session& session, std::function<void()> choose);

 private:
  struct Port {
    const char* key;
    const char* whose;
    std::string (*advice)(std::string_view device, std::string_view why);
  };

  void Look(const Port& port, const platform::SerialPort& line, const std::string& trouble);

  Conditions& conditions_;
  std::function<void()> choose_;
  platform::Registration tnc_;
  platform::Registration network_;
};

}  // namespace program
