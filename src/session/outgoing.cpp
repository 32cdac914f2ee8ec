#include "session/outgoing.h"

#include <utility>

#include "core/text.h"

namespace session {
namespace {

constexpr std::string_view kSentMark = "   <- ";
constexpr std::string_view kHidden = "********";

}  // namespace

Outgoing::Outgoing(platform::TcpSocket& socket, SessionState& state, Needs needs)
    : socket_(socket), state_(state), needs_(std::move(needs)) {}

bool Outgoing::Send(std::string_view text) { return SendAsIs(core::UCase(text)); }

bool Outgoing::SendAsIs(std::string_view text) {
  return Dispatch({.text = std::string(text), .secret = false});
}

void Outgoing::SendPassword() {
  if (!NodePassword.empty()) Dispatch({.text = NodePassword, .secret = true});
}

bool Outgoing::Dispatch(Line line) {
  state_.LastSendWasUser = true;
  needs_.lineSent();
  if (state_.TncMode) return ByTnc(line);
  if (socket_.State() == platform::SocketState::Connecting) {
    waiting_.push_back(std::move(line));
    return true;
  }
  if (socket_.State() != platform::SocketState::Connected) return false;
  LinkUp();  // its event may still be on its way
  Put(std::move(line));
  return true;
}

bool Outgoing::ByTnc(const Line& line) {
  if (!needs_.tncSend(line.text, line.secret ? kHidden : line.text)) return false;
  TellSent(line);
  return true;
}

void Outgoing::LinkUp() {
  for (Line& line : std::exchange(waiting_, {})) Put(std::move(line));
}

void Outgoing::Put(Line line) {
  if (state_.IsClx() && !line.secret) line.text = core::LCase(line.text);
  socket_.SendData(line.text + "\r\n");
  updateText2(std::string(kSentMark).append(line.secret ? kHidden : line.text));
  TellSent(line);
}

void Outgoing::TellSent(const Line& line) {
  if (onSent && !line.secret) onSent(line.text);
}

}  // namespace session
