#pragma once

#include "session/session_state.h"
#include "session/technical.h"
#include "session/timers.h"

namespace session {

// Over the radio each failure makes the wait for the next try one interval longer: the channel is
// not the node's alone.
class TncRetry {
 public:
  TncRetry(const SessionState& state, Technical& technical)
      : state_(state), technical_(technical) {}

  int ReconnectMinutes = 0;    // to the next try, growing by one with each disconnect
  int ReconnectCountdown = 0;  // of them, those still to go

  // The link has gone, and no try is awaited yet.
  void LinkLost();
  // How long it is until the next try, of which the timer that counts has so much left.
  platform::Milliseconds Wait(const Timers& timers) const;
  // An interval has passed. True if it is time for a try.
  bool Interval();
  // A login, or the user's own try: the waiting begins anew.
  void Reset();

 private:
  const SessionState& state_;
  Technical& technical_;
};

}  // namespace session
