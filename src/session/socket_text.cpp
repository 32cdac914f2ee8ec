#include "session/socket_text.h"

#include "core/text.h"

namespace session {
namespace {

// With its prefix and its SSID. What is longer is no call, whatever stands before it.
constexpr std::size_t kLongestCall = 20;

}  // namespace

std::string StateText(platform::SocketState state, bool loggedIn) {
  using platform::SocketState;
  switch (state) {
    case SocketState::Closed:
      return "Disconnected  ";
    case SocketState::Pending:
      return "Connection pending  ";
    case SocketState::Resolving:
      return "Resolving     ";
    case SocketState::Resolved:
      return "Host Resolved ";
    case SocketState::Connecting:
      return "Connecting    ";
    case SocketState::Connected:
      return loggedIn ? "Connected to:  " : "Connected & Waiting for Std Login Msg @ ";
    case SocketState::PeerClosing:
      return "Peer is Closing the Connection  ";
    case SocketState::Error:
      return "Error  ";
    case SocketState::Listening:
      break;
  }
  return "  " + std::to_string(static_cast<int>(state));
}

std::string GreetingCall(std::string_view line, std::string_view ownCall,
                         std::string_view chosenNode) {
  if (core::StartsWith(line, "%C de %M")) return std::string(chosenNode);
  std::string_view rest = core::LTrim(line);
  const std::string own(ownCall);
  for (const std::string& greeting : {"de " + own + " ", own + " de "}) {
    if (!core::StartsWithIgnoringCase(rest, greeting)) continue;
    rest = core::Trim(core::Mid(rest, core::Len(greeting) + 1));
    const core::Position blank = core::InStr(rest, " ");
    const std::string_view call = core::Left(rest, blank - 1);
    const bool isCall = !core::EndsWith(call, ":") && call.size() <= kLongestCall;
    return isCall ? core::UCase(call) : std::string();
  }
  return {};
}

}  // namespace session
