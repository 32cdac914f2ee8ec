#include "session/ar17.h"

#include <chrono>
#include <utility>

#include "core/text.h"

using namespace std::chrono_literals;

namespace session {
namespace {

// How long a node may take to name its software.
constexpr auto kPatience = 5s;
// And how long an AR-Cluster to prompt for the question, and again to answer it.
constexpr auto kAnswerWait = 30s;

constexpr auto kNotCapable = "Node is NOT AR17 capable";

struct Wording {
  NodeKind kind;
  std::string_view status;
  std::string_view origState;
  std::string_view dxState;
};

// What is shown of the software that has no extended lines; empty texts leave what is there.
constexpr Wording kWordings[] = {
    {NodeKind::Spider, "Node is DX Spider", "Orig State", "DX State"},
    {NodeKind::DxNet, "Node is DxNet", "", ""},
    {NodeKind::Zelva, "Node is Zelva Cluster", "", ""},
};

bool Holds(std::string_view line, std::string_view text) { return core::InStr(line, text) > 0; }

}  // namespace

Ar17::Ar17(platform::Scheduler& scheduler, SessionState& state, Outgoing& outgoing, Intake& intake,
           Connection& connection, Duelling& duelling, const KeepAlive& keepAlive,
           LoginRequests& requests, Needs needs)
    : scheduler_(scheduler),
      state_(state),
      outgoing_(outgoing),
      intake_(intake),
      connection_(connection),
      duelling_(duelling),
      keepAlive_(keepAlive),
      requests_(requests),
      needs_(std::move(needs)) {
  lblDxState.Caption.Set("DX State");
  lblOrigState.Caption.Set("Orig State/Province");
}

void Ar17::LoggedIn() {
  overdue_ = scheduler_.After(kPatience, [this] { state_.Ar17Overdue = true; });
  WaitForAnswer();
}

void Ar17::Asked() { WaitForAnswer(); }

void Ar17::WaitForAnswer() {
  silent_ = scheduler_.After(kAnswerWait, [this] { TakeSilenceForRefusal(); });
}

void Ar17::Forget() {
  overdue_.Release();
  silent_.Release();
}

bool Ar17::ArpcReply(std::string_view line) {
  if (!state_.LoggedIn) return false;
  const bool settled = state_.ArpcAsked || state_.ArpcRefused;
  // A node that has named its software before the login has settled it with its first words.
  const bool mayRefuse = !settled || (!state_.Prompted && core::StartsWith(line, "Sorry "));
  if (mayRefuse && CallIsRefused(line)) return false;
  if (settled) return false;
  if (Accepted(line) || Refused(line)) {
    Settle();
    return true;
  }
  if (!DialectOf(state_.Kind).hasAr17) {
    RefusedBySoftware();
    Settle();
  }
  return false;
}

bool Ar17::Accepted(std::string_view line) {
  if (!Holds(line, "DX ArPc enabled")) return false;
  intake_.ForwardSuppressed = true;
  outgoing_.SendAsIs(keepAlive_.VersionText());
  state_.ArpcAsked = true;
  lblDxState.Caption.Set("DX State");
  lblOrigState.Caption.Set("Orig State/Province");
  lblStatus.Caption.Set("Node is AR17 Capable");
  return true;
}

bool Ar17::Refused(std::string_view line) {
  if (!Holds(line, "SET/DX_ARPC command error")) return false;
  state_.ArpcRefused = true;
  lblDxState.Caption.Set("DX State");
  lblStatus.Caption.Set(kNotCapable);
  return true;
}

void Ar17::RefusedBySoftware() {
  state_.ArpcRefused = true;
  if (state_.IsZelva()) intake_.ForwardSuppressed = true;
  for (const Wording& wording : kWordings) {
    if (wording.kind != state_.Kind) continue;
    lblStatus.Caption.Set(std::string(wording.status));
    if (!wording.origState.empty()) lblOrigState.Caption.Set(std::string(wording.origState));
    if (!wording.dxState.empty()) lblDxState.Caption.Set(std::string(wording.dxState));
  }
}

bool Ar17::CallIsRefused(std::string_view line) {
  if (!Holds(line, "is not a valid callsign") && !Holds(line, "is an invalid callsign"))
    return false;
  connection_.Refused(line);
  return true;
}

// Nobody has typed a line or read an answer: the command line stays as it is.
void Ar17::TakeSilenceForRefusal() {
  if (state_.Kind == NodeKind::Unknown) return WaitForAnswer();  // it may still name itself
  if (state_.ArpcAsked || state_.Ar17Refused()) return;
  state_.Ar17Silent = true;
  lblStatus.Caption.Set(kNotCapable);
  GoOn();
}

void Ar17::Settle() {
  needs_.settled();
  if (!state_.Ar17Silent) GoOn();  // else that is done
}

void Ar17::GoOn() {
  duelling_.DuelArmed = true;
  if (!state_.IsArCluster() || !state_.WantMissedSpots) return;
  state_.FirstConnect = false;
  requests_.GetEm();
}

}  // namespace session
