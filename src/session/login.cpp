#include "session/login.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace session {
namespace {

// In the order of looking. The last one catches nodes that show nothing but a prompt.
constexpr std::array<std::string_view, 8> kLoginPrompts = {
    "Please enter your call:",
    "login:",
    "Your callsign:",
    "Callsign :",
    "Please enter your callsign:",
    "Please enter your callsign at the login prompt.",
    "Cluster: ",
    " >"};

bool IsLoginPrompt(std::string_view line) {
  return std::any_of(kLoginPrompts.begin(), kLoginPrompts.end(), [line](std::string_view prompt) {
    return line.find(prompt) != std::string_view::npos;
  });
}

}  // namespace

bool Login::LoginPrompt(std::string_view line) {
  if (state_.LoggedIn || !IsLoginPrompt(line)) return false;
  state_.txtNode.Caption.Set(std::string(line));
  if (state_.LoginPromptAnswered) return true;
  state_.LoginPromptAnswered = true;
  if (!outgoing_.Send(settings_.MyCall)) return true;
  connection_.LoggedInSetup();
  state_.txtNode.Caption.Set("***Connected to: " + state_.ConnectedNodeCall);
  return true;
}

void Login::updatetxtLoginMsg(std::string_view line) {
  if (state_.LoginMsgActive && !state_.LoginTextDone) connection_.rtbLoginMsg.Append(line);
}

}  // namespace session
