#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <random>
#include <string>
#include <string_view>

#include "platform/scheduler.h"

namespace practice_node {

// How a node misbehaves.
struct MischiefPlan {
  bool close = false;   // hangs up right after the connect, without a byte
  bool refuse = false;  // doesn't listen at all
  bool silent = false;  // accepts and says nothing, ever
  bool nuls = false;
  bool escapes = false;                     // characters stand as "%41"
  bool iac = false;                         // telnet negotiations, cut anywhere
  bool noLineEnds = false;                  // from the login on
  std::optional<unsigned> closeAfterLines;  // hangs up behind that line
  std::optional<unsigned> stallAtLine;      // stops half-way through that line, for ever
  unsigned floodMegabytes = 0;              // without a line end, right after the login

  bool operator==(const MischiefPlan&) const = default;
};

// Adds what the words say, as in "nuls,close-after=5". Empty, or what is wrong with them.
std::string AddMischief(std::string_view words, MischiefPlan& plan);

// Stands between a conversation and its wire, and spoils what goes out as planned. Without a plan
// everything goes through as it is, at once.
class Mischief {
 public:
  struct Wire {
    virtual ~Wire() = default;
    virtual void Write(std::string_view bytes) = 0;
    virtual void Close() = 0;  // what was written still goes out
  };

  // The seed decides where a line is spoiled.
  Mischief(platform::Scheduler& scheduler, MischiefPlan plan, std::uint32_t seed, Wire& wire);

  void Line(std::string_view text);    // CR LF is added
  void Prompt(std::string_view text);  // goes out without a line end
  void LoggedIn();                     // the caller has logged in
  void HangUp();                       // after all that was told before

 private:
  // What waits to go out: bytes, or so many bytes of flood.
  struct Piece {
    std::string bytes;
    std::size_t flood = 0;
  };

  std::size_t Place(std::string_view text);
  std::string Spoil(std::string_view text);
  void SendLine(std::string_view text);
  void SendNegotiation(std::string_view bytes);
  void Send(std::string bytes);
  void Queue(Piece piece);
  void SendNext();
  void Later();

  platform::Scheduler& scheduler_;
  const MischiefPlan plan_;
  std::mt19937 random_;
  Wire& wire_;
  bool loggedIn_ = false;
  bool mute_ = false;
  bool hangUp_ = false;  // when all has gone out
  unsigned lines_ = 0;   // sent so far
  std::deque<Piece> waiting_;
  platform::Registration sending_;
};

}  // namespace practice_node
