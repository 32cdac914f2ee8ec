#include "session/tnc_notices.h"

#include <string>

#include "core/pause.h"
#include "core/text.h"

namespace session {
namespace {

constexpr int kPausesForGoodbye = 8;

}  // namespace

TncNotices::TncNotices(SessionState& state, Connection& connection, Outgoing& outgoing,
                       Intake& intake, TncLink& tncLink, const TncScript& tncScript,
                       Clockwork& clockwork, const core::Settings& settings)
    : state_(state),
      connection_(connection),
      outgoing_(outgoing),
      intake_(intake),
      tncLink_(tncLink),
      tncScript_(tncScript),
      clockwork_(clockwork),
      settings_(settings) {}

// Such a line is shown, too; the prompt that tells the same is not.
bool TncNotices::TellsOfTheEnd(std::string_view line) const {
  if (core::StartsWith(line, "*** DISCONNECTED")) return true;
  return tncLink_.BpqLink &&
         (core::StartsWith(line, "DISCONNECTED fm") || core::EndsWith(line, "} Welcome back."));
}

bool TncNotices::TncDisconnectNotice(std::string_view line) {
  if (!state_.TncMode) return false;
  const bool told = TellsOfTheEnd(line);
  if (!told && !core::StartsWith(line, "xxxcmd:")) return false;
  connection_.EndedOverTnc("the TNC says that the link has ended");
  if (told) state_.txtNode.Caption.Set(std::string(line));
  tncLink_.ShowLost();
  return true;
}

bool TncNotices::TncConnectedNotice(std::string_view line) {
  if (!state_.TncMode || !core::StartsWithIgnoringCase(line, "*** CONNECTED")) return false;
  tncLink_.ShowLinked();
  return !tncScript_.ScriptRunning;
}

void TncNotices::ShowEnd(std::string_view line) {
  state_.txtNode.Caption.Set(std::string(line));
  state_.txtNode.ForeColour.Set(settings_.ColourNodeDisc);
}

bool TncNotices::ReconnectedNotice(std::string_view line) {
  if (!core::StartsWithIgnoringCase(line, "*** RECONNECTED")) return false;
  connection_.WhyEnded = "the link was begun anew at the other end";
  if (state_.TncMode)
    intake_.PushStep("ReconnectedNotice", EndReconnected(state_.Sessions));
  else
    connection_.ForceClose();
  ShowEnd(line);  // behind what a close shows
  return true;
}

platform::Task<> TncNotices::EndReconnected(std::uint64_t session) {
  tncLink_.SendCtrlC();
  co_await platform::Delay(core::kPause);
  if (state_.Sessions != session) co_return;
  outgoing_.Send("DISC");
  co_await platform::Delay(core::kPause);
  if (state_.LoggedIn) co_await platform::Delay(kPausesForGoodbye * core::kPause);
  if (state_.Sessions != session) co_return;
  if (state_.LoggedIn)
    connection_.ForceClose();
  else
    connection_.EndedOverTnc({});
}

bool TncNotices::RetryNotice(std::string_view line) {
  if (!core::StartsWithIgnoringCase(line, "*** RETRY ")) return false;
  ShowEnd(line);
  lblRetriedOut.Caption.Set("Retried out = " + std::to_string(++RetriedOut));
  return true;
}

bool TncNotices::ShTNC(std::string_view line) {
  if (!state_.TncMode || !core::StartsWith(line, "SH/TNC command error")) return false;
  state_.SysopLink = true;
  clockwork_.SysopEnabled = false;
  clockwork_.AskConfig();
  return true;
}

}  // namespace session
