#include "session/comm_form.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <tuple>
#include <utility>

#include "core/pause.h"
#include "session/port_advice.h"

namespace session {
namespace {

constexpr int kLongestKeepAlive = 14;
constexpr int kKeepAliveInUse = 5;

// What a setting is called in its list, and what is stored for it.
struct Word {
  std::string_view shown;
  std::string_view stored;
};
constexpr std::array kParities = {Word{"None", "N"}, Word{"Even", "Even"}, Word{"Odd", "Odd"},
                                  Word{"Space", "Space"}, Word{"Mark", "Mark"}};
constexpr std::array kDataBitCounts = {Word{"8", "8"}, Word{"7", "7"}, Word{"6", "6"},
                                       Word{"5", "5"}, Word{"4", "4"}};
constexpr std::array kStopBitCounts = {Word{"1", "1"}, Word{"1.5", "1.5"}, Word{"2", "2"}};
constexpr std::array kFlows = {Word{"Hardware", "Hardware"}, Word{"Xon / Xoff", "Xon / Xoff"},
                               Word{"None", "None"}, Word{"Both", "Both"}};

struct WordList {
  std::string core::Settings::*setting;
  std::span<const Word> words;
};
// By CommForm::List.
constexpr std::array<WordList, CommForm::kLists> kWordLists = {{
    {&core::Settings::TncParity, kParities},
    {&core::Settings::TncDataBits, kDataBitCounts},
    {&core::Settings::TncStopBits, kStopBitCounts},
    {&core::Settings::TncFlowControl, kFlows},
}};

int PlaceOfWord(std::span<const Word> words, std::string_view stored) {
  const auto found = std::find_if(words.begin(), words.end(),
                                  [&](const Word& each) { return each.stored == stored; });
  return found == words.end() ? 0 : static_cast<int>(found - words.begin());
}

auto TncLineOf(const core::Settings& settings) {
  return std::tie(settings.TncPort, settings.TncBaud, settings.TncParity, settings.TncDataBits,
                  settings.TncStopBits, settings.TncFlowControl);
}

auto NetworkLineOf(const core::Settings& settings) {
  return std::tie(settings.NetworkPort, settings.NetworkBaud);
}

std::string LineText(const core::Settings& settings) {
  return std::to_string(settings.TncBaud) + "," + settings.TncParity.substr(0, 1) + "," +
         settings.TncDataBits + "," + settings.TncStopBits;
}

// Another sentence behind those that stand there.
void Say(core::Label& label, const std::string& sentence) {
  const std::string& text = label.Caption.Get();
  label.Caption.Set(text + (text.empty() ? "" : " ") + sentence);
}

}  // namespace

CommForm::CommForm(const platform::Platform& platform, core::Settings& settings, PortNames& names,
                   Session& session, Needs needs)
    : tnc(names),
      network(names),
      scheduler_(platform.scheduler),
      ports_(platform.serialPorts),
      settings_(settings),
      names_(names),
      session_(session),
      needs_(std::move(needs)) {
  Caption();
  Watch();
}

void CommForm::Caption() {
  cmdOpen.Caption.Set("Connection…");
  optMode.Options.Set({"Telnet", "TNC"});
  optKA.Options.Set({"Tx", "Rx"});
  std::vector<std::string> minutes;
  for (int each = 0; each <= kLongestKeepAlive; ++each) minutes.push_back(std::to_string(each));
  cboKA.Options.Set(std::move(minutes));
  cboKA.ToolTip.Set("0: Disabled.  Cannot be disabled if \"Auto Reconnect\" is enabled.");
  for (std::size_t list = 0; list < kLists; ++list) {
    std::vector<std::string> options;
    for (const Word& each : kWordLists[list].words) options.emplace_back(each.shown);
    cboTNC[list].Options.Set(std::move(options));
  }
  chkNetwork.Caption.Set("Feed another computer over a serial port");
  chkEcho.Caption.Set("Echo what is typed there");
  chkLogger.Caption.Set("Serve logging programs");
  for (core::Control* each :
       std::initializer_list<core::Control*>{&chkLogger, &txtLoggerPort, &txtK3Port}) {
    each->Enabled.Set(false);
    each->ToolTip.Set("This version has no such thing yet.");
  }
  cmdLook.Caption.Set("Look for devices");
  cmdComm.Caption.Set("Apply");
  cmdClose.Caption.Set("Close");
}

void CommForm::Watch() {
  const auto add = [this](core::Observers<>& act, void (CommForm::*run)()) {
    watching_.push_back(act.Add([this, run] { (this->*run)(); }));
  };
  add(cmdOpen.Click, &CommForm::Show);
  add(cmdLook.Click, &CommForm::Look);
  add(cmdComm.Click, &CommForm::Apply);
  add(optMode.Click, &CommForm::LoadKeepAlive);
  add(cboKA.Click, &CommForm::ChooseMinutes);
  for (core::Choice* each :
       {&optMode, &optKA, &cboKA, &tnc.optCommPort, &tnc.cboDevice, &tnc.cboBaud,
        &network.optCommPort, &network.cboDevice, &network.cboBaud})
    add(each->Click, &CommForm::Changed);
  for (core::Choice& each : cboTNC) add(each.Click, &CommForm::Changed);
  for (core::Check* each : {&chkNetwork, &chkEcho}) add(each->Click, &CommForm::Changed);
  watching_.push_back(cmdClose.Click.Add([this] { Open.Set(false); }));
  watching_.push_back(Open.Observe([this](bool open) {
    if (!open) storing_.Release();
    if (!open) ending_ = false;
  }));
  // When the session tells that it has ended it is still about to put its own things in order.
  watching_.push_back(session_.state.Phase.Observe([this](LinkPhase phase) {
    if (ending_ && phase == LinkPhase::Disconnected)
      StoreInAWhile();
    else if (Open.Get() && !ending_)
      ShowWarning();
  }));
}

void CommForm::Show() {
  if (Open.Get()) return;
  Load();
  Changed();
  Open.Set(true);
}

void CommForm::Load() {
  const auto present = ports_.List();
  optMode.Selected.Set(settings_.TncMode ? Tnc : Telnet);
  LoadKeepAlive();
  tnc.Load(settings_.TncPort, settings_.TncBaud, present);
  for (std::size_t list = 0; list < kLists; ++list) {
    const WordList& each = kWordLists[list];
    cboTNC[list].Selected.Set(PlaceOfWord(each.words, settings_.*each.setting));
  }
  chkNetwork.Value.Set(settings_.LocalNetwork);
  network.Load(settings_.NetworkPort, settings_.NetworkBaud, present);
  chkEcho.Value.Set(settings_.Echo);
  chkLogger.Value.Set(settings_.LoggingProgram);
  txtLoggerPort.Text.Set(std::to_string(settings_.LoggerPort));
  txtK3Port.Text.Set(settings_.K3Port == 0 ? "" : std::to_string(settings_.K3Port));
}

void CommForm::LoadKeepAlive() {
  const bool overTnc = optMode.Selected.Get() == Tnc;
  optKA.Selected.Set((overTnc ? settings_.TncKA : settings_.TelnetKA) == "Tx" ? Tx : Rx);
  cboKA.Selected.Set(
      std::clamp(overTnc ? settings_.TncKAtime : settings_.TelnetKAtime, 0, kLongestKeepAlive));
}

void CommForm::ChooseMinutes() {
  const bool off = cboKA.Selected.Get() == 0;
  if (off && session_.connection.AutoReconnect.Value.Get()) cboKA.Selected.Set(kKeepAliveInUse);
}

void CommForm::Look() {
  const auto present = ports_.List();
  tnc.Look(present);
  network.Look(present);
  const std::size_t count = present.size();
  lblResult.Caption.Set(count == 0   ? "No serial device was found."
                        : count == 1 ? "1 serial device was found."
                                     : std::to_string(count) + " serial devices were found.");
}

void CommForm::Changed() {
  const bool rx = optKA.Selected.Get() == Rx;
  lblKA.Caption.Set(rx ? "Rx Keep Alives in Minutes" : "Tx Keep Alives in Minutes");
  lblSettings.Caption.Set(LineText(Wanted()));
  network.Enable(chkNetwork.Value.Get());
  chkEcho.Enabled.Set(chkNetwork.Value.Get());
  lblProblem.Caption.Set({});
  lblResult.Caption.Set({});
  ShowWarning();
}

void CommForm::ShowWarning() {
  const std::string& said = session_.state.ConnectedNodeCall;
  const std::string& node = said.empty() ? settings_.NodeCall : said;
  lblWarning.Caption.Set(EndsLink(Wanted()) ? "Applying this ends the link to " + node + "." : "");
}

core::Settings CommForm::Wanted() const {
  core::Settings wanted = settings_;
  wanted.TncMode = optMode.Selected.Get() == Tnc;
  (wanted.TncMode ? wanted.TncKA : wanted.TelnetKA) = optKA.Selected.Get() == Rx ? "Rx" : "Tx";
  (wanted.TncMode ? wanted.TncKAtime : wanted.TelnetKAtime) = cboKA.Selected.Get();
  wanted.TncPort = tnc.Port();
  wanted.TncBaud = tnc.Baud();
  for (std::size_t list = 0; list < kLists; ++list) {
    const auto place = static_cast<std::size_t>(cboTNC[list].Selected.Get());
    wanted.*kWordLists[list].setting = kWordLists[list].words[place].stored;
  }
  wanted.LocalNetwork = chkNetwork.Value.Get();
  wanted.NetworkPort = network.Port();
  wanted.NetworkBaud = network.Baud();
  wanted.Echo = chkEcho.Value.Get();
  return wanted;
}

bool CommForm::TncLineIsNew(const core::Settings& wanted) const {
  return TncLineOf(wanted) != TncLineOf(settings_) || tnc.Device() != names_.Path(wanted.TncPort);
}

bool CommForm::NetworkLineIsNew(const core::Settings& wanted) const {
  return NetworkLineOf(wanted) != NetworkLineOf(settings_) ||
         network.Device() != names_.Path(wanted.NetworkPort);
}

bool CommForm::EndsLink(const core::Settings& wanted) const {
  if (session_.state.Phase.Get() == LinkPhase::Disconnected) return false;
  const bool otherMode = wanted.TncMode != session_.state.TncMode;
  return otherMode || (wanted.TncMode && TncLineIsNew(wanted));
}

std::string CommForm::Problem(const core::Settings& wanted) const {
  if (wanted.TncMode && wanted.TncPort == 0) return "Choose the port that the TNC is on.";
  if (wanted.LocalNetwork && wanted.NetworkPort == 0)
    return "Choose the port of the local network, or switch it off.";
  const bool oneDevice = tnc.Device() == network.Device();
  // Even one that is not in use: its entry would be written over by the other's.
  if (wanted.TncPort == wanted.NetworkPort && wanted.TncPort != 0 && !oneDevice)
    return "Port " + std::to_string(wanted.TncPort) +
           " can't be two devices. Choose another number for the TNC or the local network.";
  if (wanted.TncMode && wanted.LocalNetwork && oneDevice)
    return "The TNC and the local network need a device each. Choose another one for either.";
  return {};
}

void CommForm::Apply() {
  if (ending_) return;
  const core::Settings wanted = Wanted();
  lblResult.Caption.Set({});
  lblProblem.Caption.Set(Problem(wanted));
  if (!lblProblem.Caption.Get().empty()) return;
  if (!EndsLink(wanted)) return Store();
  ending_ = true;
  lblResult.Caption.Set("The link ends first…");
  session_.connection.cmdDisconnect.Press();
}

// The TNC is still being told to end its link when the session has ended already.
void CommForm::StoreInAWhile() {
  storing_ = scheduler_.After(core::kPause, [this] {
    if (session_.tncLink.MSComm1->AllWritten())
      Store();
    else
      StoreInAWhile();
  });
}

void CommForm::Store() {
  ending_ = false;
  lblResult.Caption.Set({});
  core::Settings wanted = Wanted();
  const bool otherMode = wanted.TncMode != settings_.TncMode;
  const bool tncIsNew = otherMode || TncLineIsNew(wanted);
  const bool networkIsNew = NetworkLineIsNew(wanted);
  if (!NameDevices(wanted)) return;
  settings_ = std::move(wanted);
  needs_.delayedWriteCfg();
  if (otherMode) needs_.takeMode();
  session_.keepAlivePanel.Load();
  OpenPorts(tncIsNew, networkIsNew);
  const auto present = ports_.List();
  tnc.Look(present);
  network.Look(present);
  ShowWarning();
}

bool CommForm::NameDevices(const core::Settings& wanted) {
  using Fault = platform::Files::Fault;
  const auto name = [this](int port, const std::string& device) {
    const bool same = port == 0 || device == names_.Path(port);
    return same ? Fault::None : names_.Assign(port, device);
  };
  Fault fault = name(wanted.TncPort, tnc.Device());
  if (fault == Fault::None) fault = name(wanted.NetworkPort, network.Device());
  if (fault == Fault::None) return true;
  lblProblem.Caption.Set(std::string("Nothing was applied: ports.cfg can't be written. ") +
                         (fault == Fault::Full ? "Make room on the disk, and apply again."
                                               : "See whose it is, and apply again."));
  return false;
}

void CommForm::OpenPorts(bool tncIsNew, bool networkIsNew) {
  TncLink& link = session_.tncLink;
  LocalNetwork& local = session_.localNetwork;
  if (tncIsNew || !settings_.TncMode) link.CloseComm1();
  if (networkIsNew || !settings_.LocalNetwork) local.CloseComm2();
  Say(lblResult, "Applied.");
  const auto tell = [this](const std::string& device, const std::string& trouble) {
    if (trouble.empty())
      Say(lblResult, device + " is open.");
    else
      Say(lblProblem, PortAdvice(device, trouble));
  };
  if (settings_.TncMode) {
    link.OpenComm1();
    tell(tnc.Device(), link.Trouble.Get());
  }
  if (settings_.LocalNetwork) {
    local.OpenComm2();
    tell(network.Device(), local.Trouble.Get());
  }
}

void CommForm::ModeTaken() {
  if (!Open.Get()) return;
  optMode.Selected.Set(settings_.TncMode ? Tnc : Telnet);
  LoadKeepAlive();
  Changed();
}

void CommForm::NetworkStopped() {
  if (!Open.Get()) return;
  chkNetwork.Value.Set(false);
  network.Clear();
  Changed();
}

}  // namespace session
