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

// The node asks for the password without a prompt of its own.
constexpr std::string_view kPromptWithPassword = "Callsign :";

// The prompt that the line holds; empty if it holds none.
std::string_view LoginPromptIn(std::string_view line) {
  const auto found = std::find_if(
      kLoginPrompts.begin(), kLoginPrompts.end(),
      [line](std::string_view prompt) { return line.find(prompt) != std::string_view::npos; });
  return found == kLoginPrompts.end() ? std::string_view() : *found;
}

// The first prompt behind the login names the caller: "K1TST-2 de N0NODE 2148Z dxspider >".
bool IsOwnPrompt(std::string_view line, std::string_view ownCall) {
  const std::string caller = std::string(core::Trim(ownCall)) + " de ";
  return core::EndsWith(line, ">") && core::InStrIgnoringCase(line, caller) > 0;
}

}  // namespace

bool Login::LoginPrompt(std::string_view line) {
  if (state_.LoggedIn) return false;
  const std::string_view prompt = LoginPromptIn(line);
  if (prompt.empty()) return false;
  state_.txtNode.Caption.Set(std::string(line));
  if (!outgoing_.Send(core::Trim(settings_.MyCall))) return true;
  connection_.LoggedInSetup();
  state_.txtNode.Caption.Set("***Connected to: " + state_.ConnectedNodeCall);
  if (prompt == kPromptWithPassword) outgoing_.SendPassword();
  return true;
}

void Login::updatetxtLoginMsg(std::string_view line) {
  if (!state_.LoginMsgActive || state_.LoginTextDone) return;
  if (state_.LoggedIn && IsOwnPrompt(line, settings_.MyCall))
    state_.LoginTextDone = true;
  else
    connection_.rtbLoginMsg.Append(line);
}

void Login::LoginSequence(std::string_view) {
  if (state_.LoginTextDone) state_.LoginFinished = true;
}

}  // namespace session
