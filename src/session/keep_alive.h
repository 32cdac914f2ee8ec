#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/controls.h"
#include "session/session_state.h"
#include "session/timers.h"

namespace session {

// Keeps a quiet link alive, and notices a dead one. Counts minutes since the last line received and
// since the last one sent.
//
// In Rx mode a keep-alive goes out when the node has been silent for KeepAliveMinutes, and then
// each minute; after four more minutes of silence the link is given up. In Tx mode one goes out
// when nothing has been sent for that long.
class KeepAlive {
 public:
  struct Needs {
    std::function<void(const std::string& text)> sendAsIs;
    std::function<void()> giveUp;  // the link is dead
  };

  KeepAlive(Timers& timers, const SessionState& state, Needs needs);

  int KeepAliveMinutes = 5;  // 0: off
  bool KeepAliveRx = true;   // otherwise Tx
  int RxInactiveMinutes = 0;
  int TxInactiveMinutes = 0;
  int KeepAliveSent = 0;
  int KeepAliveDisc = 0;  // links given up

  // "Keep Alive Tx= 3", "Nulls Rx = 2", "KA Disc= 1".
  std::array<core::Label, 3> lblKA;
  // "Rx Inact. = 0" or "Tx Inact. = 0".
  core::Label lblInactivity;

  void LineReceived();
  void NulReceived(int nulls);  // how many there have been
  void LineSent();
  // The login has begun to be answered: from now on silence counts.
  void LoggedIn();
  // Puts the count of the mode into lblInactivity.
  void ShowInactivity();
  // "KeepAlive Rx 5  V2.4315": how the program introduces itself to a node.
  std::string VersionText() const;

 private:
  void Minute();
  void GiveUp();
  void SendOne();
  std::string Text() const;
  void Flash(std::size_t label, const std::string& text, TimerId reset);

  Timers& timers_;
  const SessionState& state_;
  Needs needs_;
};

}  // namespace session
