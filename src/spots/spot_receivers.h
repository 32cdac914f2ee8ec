#pragma once

#include <string_view>

#include "spots/spot.h"

namespace spots {

// Who else hears of a spot on its way: parts of the program above this one.
class SpotReceivers {
 public:
  virtual ~SpotReceivers() = default;

  // Whether anybody takes lines: a logging program, or the window of one.
  virtual bool TakesLines() = 0;
  // An accepted extended line, as it came, for the programs that want every line so.
  virtual void ForwardRawToLoggers(std::string_view rawLine) = 0;
  // A line for all others.
  virtual void FeedLoggers(std::string_view line) = 0;
  // The spot as a node sends it live, for the window of a logging program.
  virtual void FeedLogWindow(std::string_view longLine) = 0;

  // The operator's friends who wait for that call are told of it.
  virtual void TellBuddies(const Spot& spot, std::string_view longLine) = 0;
  // A spot on the very bottom edge of a band is an announcement.
  virtual void Announce(std::string_view text, std::string_view sender) = 0;
  // True if it is one that the operator is to be alarmed of.
  virtual bool CheckAlarm(const Spot& spot, std::string_view row) = 0;
  // Puts a sound into the queue.
  virtual void WaveQue(std::string_view name) = 0;
};

}  // namespace spots
