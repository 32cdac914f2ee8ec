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

}  // namespace

bool Login::LoginPrompt(std::string_view line) {
  if (state_.LoggedIn || tncLink_.BpqLink) return false;
  const std::string_view prompt = LoginPromptIn(line);
  if (prompt.empty()) return false;
  state_.txtNode.Caption.Set(std::string(line));
  const std::string call = duelling_.CheckDuelling(std::string(core::Trim(settings_.MyCall)));
  if (!outgoing_.Send(call)) return true;
  connection_.LoggedInSetup();
  state_.txtNode.Caption.Set("***Connected to: " + state_.ConnectedNodeCall);
  if (state_.IsClx() || prompt == kPromptWithPassword) outgoing_.SendPassword();
  return true;
}

}  // namespace session
