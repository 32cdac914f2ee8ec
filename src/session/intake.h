#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/tcp.h"
#include "session/chain.h"
#include "session/forwarding.h"
#include "session/line_buffer.h"
#include "session/session_state.h"
#include "session/steps.h"

namespace session {

// The way of the node's text into the program: bytes to lines, lines through the chain.
//
// Intake is held while anybody has a Hold or a step is waiting: then bytes stay unread, and with
// them the peer's end of the connection.
class Intake {
 public:
  // What intake itself asks of others.
  struct Needs {
    std::function<void()> lineReceived;
    std::function<void(int nulls)> nulReceived;  // how many there have been
    std::function<void(std::string_view line)> showRaw;
    std::function<void(int escapes)> escapesRepaired;  // how many there have been
    // Whether the line is nothing but a command come back: it means nothing then.
    std::function<bool(std::string_view line)> isEcho;
    std::function<void()> sendPassword;
    // Told the routine that failed and why; the line goes on to the next row.
    platform::FaultHandler onFault;
  };

  Intake(platform::Scheduler& scheduler, platform::TcpSocket& socket, SessionState& state,
         Chain& chain, LineFeed& feed, Needs needs);

  // Keeps intake held as long as it lives.
  [[nodiscard]] platform::Registration Hold();
  bool Held() const { return holds_ > 0 || steps_.Busy(); }

  // Takes what the socket has, up to a bounded number of bytes.
  void Turn();

  // Takes text that has come by the TNC. What has to wait joins what the socket gave.
  void Receive(std::string_view bytes);

  // One byte of the node's text.
  void InputCharacter(std::uint8_t byte);
  // One whole line.
  void InputLine(std::string_view line);

  // For line handlers that wait: the rest of the work, done before any further text. The rest of
  // the line's way is put behind it.
  void PushStep(std::string name, platform::Task<> step);

  // Ends the line that has begun, unseen.
  void ClearLine() { line_.Clear(); }
  // The program closes the session itself: what is unread and the steps not yet begun go.
  void Drop();

  StopLists stopLists;
  bool ForwardSuppressed = false;  // set by a handler: the line is nothing to logging programs
  platform::Milliseconds LastLineAt{0};  // of the scheduler
  int NullsReceived = 0;
  int EscapedErrors = 0;

  // Told of each line that a row has claimed.
  std::function<void(int row, std::string_view line)> onClaimed;

 private:
  void HoldChanged();
  void Consume();
  void FinishLine();
  void Run(std::string_view line, int row);
  bool ClosedToSession(int row) const;
  Chain::Claim Offer(int row, std::string_view line);
  platform::Task<> Rest(std::string line, int row);
  void Forward(std::string_view line);
  LineBuffer::Prompts PromptsNow() const;

  platform::Scheduler& scheduler_;
  platform::TcpSocket& socket_;
  SessionState& state_;
  Chain& chain_;
  LineFeed& feed_;
  Needs needs_;
  LineBuffer line_;
  std::string whole_;  // the line on its way through the chain
  std::string batch_;
  std::size_t batchAt_ = 0;
  int holds_ = 0;
  std::uint64_t sessions_ = 0;  // that have been closed
  platform::Registration goingOn_;
  Steps steps_;
};

}  // namespace session
