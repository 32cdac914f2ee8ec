#include "session/outgoing.h"

#include <utility>

#include "core/text.h"

namespace session {
namespace {

constexpr std::string_view kSentMark = "   <- ";
constexpr std::string_view kHidden = "********";

}  // namespace

bool Outgoing::Send(std::string_view text) { return SendAsIs(core::UCase(text)); }

bool Outgoing::SendAsIs(std::string_view text) {
  return Dispatch({std::string(text), std::string(text)});
}

void Outgoing::SendPassword() {
  if (!NodePassword.empty()) Dispatch({NodePassword, std::string(kHidden)});
}

bool Outgoing::Dispatch(Line line) {
  lineSent_(line.shown);
  if (socket_.State() == platform::SocketState::Connecting) {
    waiting_.push_back(std::move(line));
    return true;
  }
  if (socket_.State() != platform::SocketState::Connected) return false;
  LinkUp();  // its event may still be on its way
  Put(line);
  return true;
}

void Outgoing::LinkUp() {
  for (const Line& line : std::exchange(waiting_, {})) Put(line);
}

void Outgoing::Put(const Line& line) {
  socket_.SendData(line.text + "\r\n");
  updateText2(std::string(kSentMark) + line.shown);
}

}  // namespace session
