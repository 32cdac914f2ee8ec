#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "session/session_state.h"

namespace session {

// Short commands that are sent with one click: the node's own, once they are fetched from it, or
// what the operator puts in their place.
class Macros {
 public:
  static constexpr std::size_t kCount = 10;

  struct Needs {
    std::function<bool(std::string_view text)> send;  // in upper case; false if it is lost
    std::function<void()> suppressForward;            // this line is nothing to logging programs
    std::function<void()> openChat;                   // frmChat; nothing if it is open
  };

  Macros(const SessionState& state, Needs needs);

  std::array<core::Button, kCount> cmdMacro;  // [0] "Get Macros", the others send their field
  std::array<core::TextBox, kCount> txtMacro;
  core::Control fraSendMacro;  // holds the buttons
  core::Control fraMacros;     // holds the fields; says whose macros they are
  bool MacrosLoaded = false;   // this node's macros have come

  // A line handler; true claims the line. Reads the list from a line that begins with "Macro" up to
  // the first that is no macro, the prompt above all: that one is left to others.
  bool UserMacro(std::string_view line);

  // The session is over, and the node's macros with it. What stands in the fields stays.
  void Disconnected();

 private:
  void GetMacros();
  void Begin();
  bool Take(std::string_view line);
  void SendField(std::size_t index);

  const SessionState& state_;
  Needs needs_;
  bool reading_ = false;
  bool asked_ = false;  // in this session
  std::vector<platform::Registration> acts_;
};

}  // namespace session
