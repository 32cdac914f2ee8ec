#include "session/tnc_link.h"

#include <chrono>
#include <utility>

#include "core/pause.h"
#include "core/text.h"

using namespace std::chrono_literals;

namespace session {
namespace {

constexpr platform::Milliseconds kRestOfANewPort = 500ms;
constexpr std::string_view kEsc = "\x1b";

platform::FlowControl FlowOf(std::string_view name) {
  if (name == "None") return platform::FlowControl::None;
  if (name == "Xon / Xoff") return platform::FlowControl::XonXoff;
  if (name == "Both") return platform::FlowControl::Both;
  return platform::FlowControl::Hardware;
}

// "^C" is the one byte that stands 64 below its letter. Without such a byte the text stays.
std::string WithControl(std::string_view text) {
  constexpr int kDistance = 64;
  if (text.size() != 2 || text[0] != '^') return std::string(text);
  const int control = static_cast<unsigned char>(text[1]) - kDistance;
  return control < 0 ? std::string(text) : std::string(1, static_cast<char>(control));
}

}  // namespace

TncLink::TncLink(platform::SerialPorts& ports, const core::Settings& settings,
                 const SessionState& state, Timers& timers, Needs needs)
    : MSComm1(ports.MakePort()),
      settings_(settings),
      state_(state),
      timers_(timers),
      needs_(std::move(needs)) {
  MSComm1->lost = [this](const std::string& why) {
    Trouble.Set(why);
    needs_.onFault("MSComm1", why);
    needs_.lost();
  };
  lblTnc.Visible.Set(false);
  ShowSession(false);
}

platform::SerialSettings TncLink::PortSettings() const {
  return {.baud = settings_.TncBaud,
          .parity = settings_.TncParity.empty() ? 'N' : settings_.TncParity.front(),
          .dataBits = core::ValInt(settings_.TncDataBits),
          .stopBits = settings_.TncStopBits,
          .flow = FlowOf(settings_.TncFlowControl)};
}

bool TncLink::OpenComm1() {
  if (MSComm1->PortOpen()) return true;
  MSComm1->Settings = PortSettings();
  MSComm1->CommPort = needs_.portPath(settings_.TncPort);
  const std::string why = MSComm1->Open();
  const bool news = why != Trouble.Get();
  Trouble.Set(why);
  if (!why.empty()) {
    if (news) needs_.onFault("OpenComm1", why);
    return false;
  }
  MSComm1->Output({}, kRestOfANewPort);
  timers_.Enable(TimerId::Tnc);
  return true;
}

void TncLink::CloseComm1() {
  MSComm1->Close();
  Trouble.Set({});
}

std::string TncLink::WhyClosed() const {
  const std::string path = needs_.portPath(settings_.TncPort);
  if (path.empty()) return "no port is chosen for the TNC";
  return "the TNC's port " + path + " does not open (" + Trouble.Get() + ")";
}

void TncLink::BeginLink() {
  BpqLink = false;
  EscLink = false;
  ShowSession(false);
}

void TncLink::ShowSession(bool loggedIn) {
  if (loggedIn)
    ShowLit("logged in");
  else
    Light(core::kThemeColour, "not logged in");
}

void TncLink::ShowLinked() { ShowLit("linked"); }

void TncLink::ShowLost() { Light(core::kRed, "the link has gone"); }

void TncLink::ShowLit(std::string means) {
  if (BpqLink) means += " by way of another node";
  Light(BpqLink ? core::kBlue : core::kGreen, std::move(means));
}

void TncLink::Light(core::Colour colour, std::string means) {
  lblTnc.ForeColour.Set(colour);
  lblTnc.ToolTip.Set(std::move(means));
}

bool TncLink::TncSend(std::string_view text, std::string_view shown) {
  if (!OpenComm1()) return false;
  Write(text);
  needs_.showRaw("   <- " + std::string(shown));
  return true;
}

void TncLink::Write(std::string_view text) {
  if (text.starts_with("!"))
    CallBpq(text.substr(1));
  else if (text.starts_with("ESC"))
    CallEsc(text.substr(3));
  else if (EscLink)
    WriteSlowly(WithControl(text));
  else
    MSComm1->Output(WithControl(text) + "\r");
}

void TncLink::CallBpq(std::string_view rest) {
  BpqLink = true;
  EscLink = false;
  if (state_.LoggedIn) ShowSession(true);
  MSComm1->Output("!");
  MSComm1->Output(std::string(rest) + "\r", core::kPause);
}

void TncLink::CallEsc(std::string_view rest) {
  BpqLink = true;
  EscLink = true;
  MSComm1->Output(kEsc);
  MSComm1->Output(rest, core::kPause);
  MSComm1->Output("\r", core::kPause);
}

void TncLink::WriteSlowly(std::string_view text) {
  platform::Milliseconds gap{0};
  for (const char byte : std::string(text) + "\r")
    MSComm1->Output({&byte, 1}, std::exchange(gap, core::kPause));
}

bool TncLink::SendCtrlC() {
  if (!OpenComm1()) return false;
  MSComm1->Output("\x03");
  needs_.showRaw("   <- ^C");
  return true;
}

bool TncLink::CallAndDisconnect() {
  if (!BpqLink) return false;
  const std::string_view text = EscLink ? "ESCD" : "!D";
  return TncSend(text, text);
}

bool TncLink::SendAutobaud() {
  if (!OpenComm1()) return false;
  MSComm1->Output("*");
  return true;
}

void TncLink::ReadTNC() {
  if (state_.TncMode && !needs_.intakeHeld()) needs_.received(MSComm1->Input());
}

}  // namespace session
