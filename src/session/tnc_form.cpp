#include "session/tnc_form.h"

#include <algorithm>
#include <utility>

#include "core/text.h"
#include "session/port_advice.h"

namespace session {
namespace {

constexpr auto kNotOverTnc = "The program connects by telnet. Choose the TNC under Connection.";

// By TncStepMark::Progress.
constexpr std::array<const char*, 4> kProgressWords = {"", "waiting", "answered", "timed out"};

constexpr std::string_view kPoints = ".,";

// Double quotes are lost on the way to the file: without them what runs is what is kept.
std::string Kept(const core::TextBox& box) {
  std::string text = box.Text.Get();
  std::erase(text, '"');
  return text;
}

// Whole seconds, at most the longest time-out; empty without a digit.
std::string Seconds(std::string_view typed) {
  std::string digits(typed.substr(0, typed.find_first_of(kPoints)));
  std::erase_if(digits, [](char c) { return c < '0' || c > '9'; });
  if (digits.empty()) return {};
  return std::to_string(std::min(core::ValInt(digits), TncScript::kLongestTimeOut));
}

}  // namespace

TncForm::TncForm(core::Settings& settings, Session& session, Needs needs)
    : settings_(settings), session_(session), needs_(std::move(needs)) {
  Caption();
  Watch();
}

void TncForm::Caption() {
  cmdOpen.Caption.Set("TNC…");
  lblCluster.Caption.Set("Cluster Callsign");
  lblCmd.Caption.Set("Connect String");
  lblCmd.ToolTip.Set("To TNC");
  lblScript.Caption.Set("Connect Response");
  lblScript.ToolTip.Set("Desired reply from TNC");
  lblTimeOut.Caption.Set("Time Out");
  lblTimeOut.ToolTip.Set("Connection Time Out in Seconds");
  for (core::TextBox& each : txtTimeOut) each.ToolTip.Set("Maximum 65 seconds");
  cmdSave.Caption.Set("Save");
  cmdRun.Caption.Set("Run");
  cmdConv.Caption.Set("conv");
  cmdCmd.Caption.Set("cmd:");
  cmdHelp.Caption.Set("Help");
  cmdClose.Caption.Set("Close");
  cmdHelp.Enabled.Set(needs_.openManual != nullptr);
  cmdHelp.ToolTip.Set(needs_.openManual ? "The manual at this page" : "No manual is installed.");
}

void TncForm::Watch() {
  const auto add = [this](core::Observers<>& act, std::function<void()> run) {
    watching_.push_back(act.Add(std::move(run)));
  };
  for (std::size_t step = 0; step < kSteps; ++step)
    add(txtTimeOut[step].Change, [this, step] { LimitTime(step); });
  add(cmdOpen.Click, [this] { Show(); });
  add(cmdSave.Click, [this] {
    if (Save()) lblResult.Caption.Set("Saved.");
  });
  add(cmdRun.Click, [this] { Run(); });
  add(cmdConv.Click, [this] { ShowSent(session_.outgoing.SendAsIs("conv")); });
  add(cmdCmd.Click, [this] { ShowSent(session_.tncLink.SendCtrlC()); });
  add(cmdHelp.Click, [this] { needs_.openManual(); });
  add(cmdClose.Click, [this] { Open.Set(false); });
  watching_.push_back(session_.connection.cmdConnect.Enabled.Observe([this](bool) { TakeMode(); }));
  for (std::size_t step = 0; step < kSteps; ++step) WatchStep(step);
}

void TncForm::WatchStep(std::size_t step) {
  TncStepMark& mark = session_.tncScript.steps[step];
  core::Label& label = lblStep[step];
  watching_.push_back(mark.progress.Observe([&label](TncStepMark::Progress progress) {
    label.Caption.Set(kProgressWords[static_cast<std::size_t>(progress)]);
  }));
  watching_.push_back(
      mark.ForeColour.Observe([&label](core::Colour colour) { label.ForeColour.Set(colour); }));
}

void TncForm::Show() {
  if (Open.Get()) return;
  Load();
  TakeMode();
  Open.Set(true);
}

void TncForm::Load() {
  txtCluster.Text.Set(settings_.TncCluster);
  for (std::size_t step = 0; step < kSteps; ++step) {
    const bool used = step < settings_.TncSteps.size();
    const core::TncStep shown = used ? settings_.TncSteps[step] : core::TncStep{};
    txtCmd[step].Text.Set(shown.Command);
    txtScript[step].Text.Set(shown.Reply);
    txtTimeOut[step].Text.Set(Seconds(shown.TimeOut));
  }
  lblProblem.Caption.Set({});
  lblResult.Caption.Set({});
}

void TncForm::TakeMode() {
  const bool overTnc = session_.state.TncMode;
  const bool free = session_.connection.cmdConnect.Enabled.Get();
  for (core::Button* each : {&cmdConv, &cmdCmd}) {
    each->Enabled.Set(overTnc);
    each->ToolTip.Set(overTnc ? "" : kNotOverTnc);
  }
  cmdRun.Enabled.Set(overTnc && free);
  cmdRun.ToolTip.Set(!overTnc ? kNotOverTnc : free ? "" : "The link is up or being made.");
}

// A point stays while the field is typed in: without it the digits of the fraction, which are
// dropped, would become further ones of the seconds.
void TncForm::LimitTime(std::size_t step) {
  const std::string& typed = txtTimeOut[step].Text.Get();
  const auto point = typed.find_first_of(kPoints);
  const std::string kept = point == std::string::npos ? "" : typed.substr(point, 1);
  txtTimeOut[step].Text.Set(Seconds(typed) + kept);
}

std::vector<core::TncStep> TncForm::Steps() const {
  std::vector<core::TncStep> steps;
  for (std::size_t step = 0; step < kSteps; ++step)
    if (core::ValInt(txtTimeOut[step].Text.Get()) > 0)
      steps.push_back(
          {Kept(txtCmd[step]), Kept(txtScript[step]), Seconds(txtTimeOut[step].Text.Get())});
  return steps;
}

std::string TncForm::Problem() const {
  for (std::size_t step = 0; step < kSteps; ++step) {
    const bool hasText = !Kept(txtCmd[step]).empty() || !Kept(txtScript[step]).empty();
    if (hasText && core::ValInt(txtTimeOut[step].Text.Get()) == 0)
      return "Step " + std::to_string(step + 1) + " has no time-out. Enter 1 to 65 seconds.";
  }
  return {};
}

bool TncForm::Save() {
  lblResult.Caption.Set({});
  lblProblem.Caption.Set(Problem());
  if (!lblProblem.Caption.Get().empty()) return false;
  settings_.TncCluster = core::UCase(core::Trim(Kept(txtCluster)));
  settings_.TncSteps = Steps();
  needs_.saved();
  Load();
  return true;
}

void TncForm::Run() {
  if (!Save()) return;
  if (settings_.TncSteps.empty()) {
    lblProblem.Caption.Set("There is no step to run. Enter what connects you, and a time-out.");
    return;
  }
  lblResult.Caption.Set("Saved. Connecting…");
  session_.connection.cmdConnect.Press();
}

void TncForm::ShowSent(bool sent) {
  lblResult.Caption.Set(sent ? "Sent." : "");
  const TncLink& link = session_.tncLink;
  lblProblem.Caption.Set(sent ? "" : PortAdvice(link.MSComm1->CommPort, link.Trouble.Get()));
}

}  // namespace session
