#include "program/program.h"

#include <utility>

#include "core/password_file.h"
#include "core/version.h"
#include "program/clock_condition.h"
#include "program/offset_condition.h"
#include "program/save_condition.h"

namespace program {
namespace {

using session::TimerId;

// How often it is looked whether anything waits to be shown: in the order of time no row does.
constexpr platform::Milliseconds kTick{100};
constexpr platform::Milliseconds kTickOfTimeOrder{1000};

}  // namespace

Program::Program(const platform::Platform& platform, std::string folder, Needs needs)
    : platform_(platform),
      folder_(std::move(folder)),
      needs_(std::move(needs)),
      calendar(platform.clock),
      errorLog(platform.files, platform.dialogs, calendar, folder_),
      portNames(platform.files, Path("ports.cfg")),
      practiceNode_(platform_, settings),
      chain_(*this),
      ties_(*this),
      session(platform_, calendar, settings,
              {.chain = chain_,
               .loggers = standIns,
               .requests = ties_,
               .clockWork = ties_,
               .defaultNode = [this] { return nodeDirectory.Default(); },
               .askUserInfo = [this] { userInfo.Show(); },
               .lookUpAddress =
                   [this] {
                     if (!endpoints.molva1.empty()) standIns.GetLatestVersion();
                   },
               .onNodeKnown = [this] { CaptionSetup(); },
               .delayedWriteCfg = [this] { DelayedWriteCfg(); },
               .writeCfg = [this] { WriteCfg(); },
               .showMessage = [this](const std::string& heading,
                                     const std::string& text) { messageForm.Show(heading, text); },
               .closeMessage = [this] { messageForm.Close(); },
               .ar17Settled = [] {},
               .profileAsked = [this] { profileReader.AskedByLogin(); },
               .onEnding =
                   [this] {
                     profileReader.Forget();
                     spotParts.Disconnected();
                   },
               .onFault = errorLog.FaultHandler(),
               .seed = needs_.seed,
               .wakeNode = [this] { return practiceNode_.Wake(); },
               .portPath = [this](int number) { return portNames.Path(number); },
               .askTncScript = [this] { tncForm.Show(); },
               .localNetworkOff = [this] { commForm.NetworkStopped(); }}),
      commForm(
          platform_, settings, portNames, session,
          {.takeMode = [this] { TakeMode(); }, .delayedWriteCfg = [this] { DelayedWriteCfg(); }}),
      tncForm(settings, session, NeedsOfTncForm()),
      nodeDirectory(platform_.files, endpoints, folder_),
      nodeUpdate(
          platform_.scheduler, platform_.http, platform_.files, nodeDirectory, endpoints, settings,
          errorLog,
          {.delayedWriteCfg = [this] { DelayedWriteCfg(); }, .onFault = errorLog.FaultHandler()}),
      nodeForm(nodeDirectory, nodeUpdate, settings, errorLog,
               {.chosen =
                    [this] {
                      session.linkText.Tick();
                      DelayedWriteCfg();
                    }}),
      modeSwitch(platform_, settings, session, NeedsOfModeSwitch()),
      spotParts(platform_, calendar, settings, errorLog, folder_, NeedsOfSpots()),
      profileReader(platform_.scheduler, settings, session.state, session.outgoing, session.intake,
                    session.profileHints, session.keepAlive, ties_, userSettings),
      userInfo(settings, {.password = [this] { return session.outgoing.NodePassword; },
                          .save = [this](const std::string& password) { SaveUserInfo(password); }}),
      offsetForm([this](const std::string& gmtOffset) {
        settings.GmtOffset = gmtOffset;
        ApplySettings();
        DelayedWriteCfg();
      }),
      views({.winCluster = [this] { return session.state.Kind == session::NodeKind::WinCluster; },
             .delayedWriteCfg = [this] { DelayedWriteCfg(); },
             .onFault = errorLog.FaultHandler()}),
      dxTab(views, spotParts.table, session.state),
      appearance(settings, [this] { DelayedWriteCfg(); }),
      textSizes(settings, [this] { DelayedWriteCfg(); }),
      colourForm(settings, NeedsOfColourForm()),
      dxLook(settings, textSizes, [this] { DelayedWriteCfg(); }),
      rawPane(session.commandLine.cmdRawplus[session::CommandLine::kRestoreRaw],
              session.commandLine.cmdRawplus[session::CommandLine::kMaximiseRaw]),
      startOptions(settings, NeedsOfStartOptions()),
      linkCondition_(conditions, session),
      fileConditions_(conditions, spotParts),
      clockWatched_(spotParts.lines.clockCheck.HourOut.Observe(
          [this](bool hourOut) { ShowClock(conditions, hourOut); })),
      portCondition_(conditions, session, [this] { commForm.Show(); }),
      userInfoWatched_(userInfo.Open.Observe([this](bool open) { YieldToUserInfo(open); })),
      autoReconnectTicked_(
          session.connection.AutoReconnect.Click.Add([this] { DelayedWriteCfg(); })),
      linkingTicked_(MultiNode.Click.Add([this] { ChooseLinking(); })),
      macrosFollowing_(views.Changed.Add([this](const Views::Step&) {
        session.macros.fraMacros.Visible.Set(session.state.IsArCluster());
      })),
      columnsNamed_{NameColumn(session.ar17.lblDxState, spots::DisplayChoice::kDxState),
                    NameColumn(session.ar17.lblOrigState, spots::DisplayChoice::kOrigState)},
      debuggingTicked_(DebuggingOn.Click.Add([this] { WriteDebugCfg(DebuggingOn.Value.Get()); })),
      tasks_(platform.scheduler, errorLog.FaultHandler()) {
  session.timers.SetDuty(TimerId::WriteCfg, [this] { WriteCfg(); });
  session.timers.SetDuty(TimerId::DxQue, [this] { spotParts.Tick(); });
  ticking_ = spotParts.table.optSortBy.Observe([this](int order) {
    session.timers.SetInterval(TimerId::DxQue,
                               order == spots::kTimeOrder ? kTickOfTimeOrder : kTick);
  });
}

Program::~Program() = default;

// A link that is up has been through its login: what is ticked now is for the next one.
StartOptions::Needs Program::NeedsOfStartOptions() {
  return {.delayedWriteCfg = [this] { DelayedWriteCfg(); },
          .askFilters =
              [this] {
                if (session.state.LoggedIn) session.outgoing.Send("SH/FILTER");
              },
          .missedSpots =
              [this](bool wanted) {
                session::SessionState& state = session.state;
                if (state.LoggedIn) return;
                state.WantMissedSpots = state.FirstConnect = wanted;
                spotParts.lines.list.ShDxDone = !wanted;
              }};
}

session::TncForm::Needs Program::NeedsOfTncForm() {
  session::TncForm::Needs needs{.saved = [this] { TakeScript(); }, .openManual = {}};
  if (needs_.openManual) needs.openManual = [this] { needs_.openManual("tnc"); };
  return needs;
}

ColourForm::Needs Program::NeedsOfColourForm() {
  return {.delayedWriteCfg = [this] { DelayedWriteCfg(); },
          .changed =
              [this] {
                session.connection.Recolour();
                session.tncScript.Recolour();
              }};
}

session::ModeSwitch::Needs Program::NeedsOfModeSwitch() {
  return {.takeMode =
              [this] {
                TakeMode();
                commForm.ModeTaken();
              },
          .openNodes = [this] { nodeForm.Show(); },
          .askPort = [this] { commForm.Show(); },
          .askScript = [this] { tncForm.Show(); },
          .delayedWriteCfg = [this] { DelayedWriteCfg(); },
          .onFault = errorLog.FaultHandler()};
}

spots::SpotParts::Needs Program::NeedsOfSpots() {
  session::SessionState& state = session.state;
  return {.receivers = ties_,
          .countryFilter = standIns,
          .nodeFacts = [this] { return NodeFacts(); },
          .slotSwitches = [this] { return SlotSwitches(); },
          .ar17Probing = [&state] { return state.LoginFinished; },
          .nodeCall = [&state] { return std::string_view(state.ConnectedNodeCall); },
          .showDxCommand = [&state] { return std::string_view(state.ShowDxCommand); },
          .tncMode = [&state] { return state.TncMode; },
          .multiNode = [this] { return settings.Linking; },
          .keepsBottomOfBand = [this] { return settings.BobDx; },
          .RcvdPrompt = [&state](std::string_view line) { return state.RcvdAnyPrompt(line); },
          .latency = [this] { return session.latency.Last(); },
          .timeCommand = [this] { session.latency.Begin(); },
          .send = [this](std::string_view text) { session.outgoing.Send(text); },
          .sendAsIs = [this](std::string_view text) { return session.outgoing.SendAsIs(text); },
          .holdIntake = [this] { return session.intake.Hold(); },
          .showRaw = [this](std::string_view line) { session.outgoing.updateText2(line); },
          .addToRawText = [this](std::string_view line) { session.outgoing.updateText2(line); },
          .logTrouble = [this](platform::Files::Fault fault) { ShowLogged(conditions, fault); },
          .tell =
              [this](std::string_view text) {
                platform_.dialogs.Tell({.title = "Molva Desk", .text = std::string(text)});
              },
          .updateMembers = [this](spots::Membership::List list) { TellOfMembers(list); },
          .fetchFixes = nullptr,
          .openFixPage = nullptr,
          .delayedWriteCfg = [this] { DelayedWriteCfg(); },
          .onFault = errorLog.FaultHandler()};
}

platform::Registration Program::NameColumn(core::Label& words, spots::DisplayChoice::Check column) {
  core::Check& check = spotParts.display.chkAr17[column];
  return words.Caption.Observe(
      [&check](const std::string& caption) { check.Caption.Set(caption); });
}

void Program::TellOfMembers(spots::Membership::List list) {
  const std::string file = list == spots::Membership::List::Lotw ? "lotw.txt" : "eqsl.txt";
  platform_.dialogs.Tell({.title = "Molva Desk",
                          .text = "Put the list " + file + " into the folder\n" + folder_ +
                                  "\nand start the program again."});
}

void Program::ChooseLinking() {
  settings.Linking = MultiNode.Value.Get();
  CaptionSetup();
  DelayedWriteCfg();
}

spots::NodeFacts Program::NodeFacts() const {
  const session::SessionState& state = session.state;
  return {.kind = state.Kind,
          .Ar17Active = state.ArpcAsked,
          .Ar17Refused = state.Ar17Refused(),
          .SessionUp = state.LoggedIn};
}

spots::SlotSwitches Program::SlotSwitches() const {
  const auto state = [this](filters::Switch which) {
    if (!userSettings.Told[which]) return spots::NodeSwitch::Unknown;
    return userSettings.chkSettings[which].Value.Get() ? spots::NodeSwitch::On
                                                       : spots::NodeSwitch::Off;
  };
  return {.State = state(filters::kUsState),
          .Grid = state(filters::kDxGrid),
          .Cq = state(filters::kCqZone),
          .Itu = state(filters::kItuZone)};
}

void Program::DelayedWriteCfg() { session.timers.Restart(TimerId::WriteCfg); }

void Program::WriteCfg() {
  settings.AutoReconnect = session.connection.AutoReconnect.Value.Get();
  const FormPlace& place = form.Get();
  settings.FormMaximized = place.maximised;
  settings.InputHeight = place.inputHeight;
  if (!place.maximised) {
    settings.FormLeft = place.left;
    settings.FormTop = place.top;
    settings.FormWidth = place.width;
    settings.FormHeight = place.height;
  }
  if (configuration_) configuration_->WriteCfg(settings);
}

void Program::ApplySettings() {
  calendar.GmtOffset = settings.GmtOffset;
  ShowOffset(conditions, settings.GmtOffset, [this] { offsetForm.Show(); });
  session.intake.stopLists.Build(settings.MyCall);
  session.linkText.Tick();
  userInfo.Refresh();
  userSettings.Take(settings);
  spotParts.TakeSettings();
  appearance.Load();
  textSizes.Load();
  colourForm.Load();
  dxLook.Load();
  startOptions.Load();
  CaptionSetup();
}

void Program::SaveUserInfo(const std::string& password) {
  session.outgoing.NodePassword = password;
  const auto fault = core::SavePassword(platform_.files, Path("molva.pwd"), password);
  if (fault != platform::Files::Fault::None)
    platform_.dialogs.Tell(
        {.title = "Sub - SaveUserInfo",
         .text = "Unable to save User Info\nDo you have write permission for this folder?",
         .kind = platform::Message::Kind::Warning});
  ApplySettings();
  WriteCfg();
  // Who is new here chooses his node next.
  if (std::exchange(configurationIsNew_, false)) nodeForm.Show();
}

// The form of the user asks for the offset among the rest: that of the offset alone comes behind
// it, if it has not been told by then.
void Program::YieldToUserInfo(bool open) {
  if (open) {
    offsetWaits_ = offsetWaits_ || offsetForm.Open.Get();
    offsetForm.Open.Set(false);
  } else if (std::exchange(offsetWaits_, false) && settings.GmtOffset.empty()) {
    offsetForm.Show();
  }
}

void Program::CaptionSetup() {
  const session::SessionState& state = session.state;
  const std::string& node = state.ConnectedNodeCall;
  const std::string_view word = session::DialectOf(state.Kind).titleWord;
  const std::string link = LinkWord();
  MultiNode.Value.Set(settings.Linking);
  MultiNode.Caption.Set(link);
  title.Set(
      link + "Molva Desk " + std::string(core::kProgramVersion) +
      (settings.MyCall.empty() ? "" : " @ " + settings.MyCall) +
      (node.empty() ? "" : "  (" + node + (word.empty() ? "" : " ") + std::string(word) + ")"));
  views.FollowNode();
}

void Program::TakeMode() {
  session::SessionState& state = session.state;
  state.TncMode = settings.TncMode;
  if (!settings.TncMode) session.tncScript.Abandon();
  state.ConnectedNodeCall = settings.TncMode ? settings.TncCluster : "";
  state.txtNode.Caption.Set(state.ConnectedNodeCall);
  session.tncLink.lblTnc.Visible.Set(settings.TncMode);
  session.keepAlivePanel.Load();
  tncForm.TakeMode();
  CaptionSetup();
}

// The cluster that the next link goes to.
void Program::TakeScript() {
  if (settings.TncMode && session.state.Phase.Get() == session::LinkPhase::Disconnected) TakeMode();
  DelayedWriteCfg();
}

// The second of two linked copies is fed through the first, in the extended line forms.
std::string Program::LinkWord() const {
  if (!settings.Linking) return {};
  if (Primary) return "Primary - ";
  const bool good = session.state.IsArCluster() || session.state.IsZelva();
  return good ? "Secondary - " : "Bad as Secondary - ";
}

}  // namespace program
