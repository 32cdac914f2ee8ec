#include "session/session.h"

#include <utility>

namespace session {

Session::Session(const platform::Platform& platform, const core::Calendar& calendar,
                 core::Settings& settings, Needs needs)
    : WinsockOut(platform.network.MakeSocket(platform::TcpSocket::Protocol::Telnet)),
      timers(platform.scheduler, needs.onFault),
      keepAlive(timers, state,
                {.sendAsIs = [this](const std::string& text) { outgoing.SendAsIs(text); },
                 .giveUp = [this] { connection.GiveUp("the node fell silent"); }}),
      outgoing(
          *WinsockOut, state,
          {.lineSent = [this] { keepAlive.LineSent(); },
           .tncSend = [this](std::string_view text,
                             std::string_view shown) { return tncLink.TncSend(text, shown); }}),
      tncLink(platform.serialPorts, settings, state, timers,
              {.portPath = needs.portPath,
               .intakeHeld = [this] { return intake.Held(); },
               .received = [this](std::string_view bytes) { intake.Receive(bytes); },
               .showRaw = [this](std::string_view line) { outgoing.updateText2(line); },
               .onFault = needs.onFault,
               .lost = [this] { tncScript.PortLost(); }}),
      localNetwork(platform.serialPorts, settings, timers,
                   {.portPath = needs.portPath,
                    .claimedHere = needs.localCommand,
                    .sendAsIs = [this](std::string_view line) { outgoing.SendAsIs(line); },
                    .switchedOff =
                        [off = needs.localNetworkOff, write = needs.delayedWriteCfg] {
                          off();
                          write();
                        },
                    .onFault = needs.onFault}),
      localFeed(settings, state, needs.loggers,
                {.sendRS232 = [this](std::string_view line) { localNetwork.SendRS232(line); },
                 .onFault = needs.onFault}),
      commandLine(outgoing, state,
                  {.sendAutobaud = [this] { tncLink.SendAutobaud(); },
                   .weatherInFront = needs.weatherInFront,
                   .beginFreshWeatherPage = needs.beginFreshWeatherPage}),
      intake(platform.scheduler, *WinsockOut, state, needs.chain, localFeed,
             {.lineReceived = [this] { keepAlive.LineReceived(); },
              .nulReceived = [this](int nulls) { keepAlive.NulReceived(nulls); },
              .showRaw = [this](std::string_view line) { ShowReceived(line); },
              .escapesRepaired = [this](int escapes) { technical.ShowEscapedErrors(escapes); },
              .isEcho = [this](std::string_view line) { return IsEcho(line); },
              .sendPassword = [this] { outgoing.SendPassword(); },
              .onFault = needs.onFault}),
      nodeAddress(settings,
                  {.defaultNode = needs.defaultNode, .delayedWriteCfg = needs.delayedWriteCfg}),
      duelling(platform.scheduler, state, timers,
               {.showMessage = needs.showMessage,
                .closeMessage = needs.closeMessage,
                .seed = needs.seed}),
      tncRetry(state, technical),
      tncScript(settings, state, outgoing, tncLink, timers,
                {.beginning = [this] { connection.BeginOverTnc(); },
                 .stepBegins = [this] { connection.GoOnOverTnc(); },
                 .linked = [this] { connection.LinkedOverTnc(tncLink.BpqLink); },
                 .drop = [this] { intake.Drop(); },
                 .ended = [this](std::string why) { connection.EndedOverTnc(std::move(why)); },
                 .noScript = [this, ask = needs.askTncScript] { NothingToTry(ask); }}),
      loginWatch(settings, state, *WinsockOut, outgoing, intake, timers,
                 {.giveUp = [this] { connection.GiveUpLogin(); }}),
      connection(platform.scheduler, calendar, settings, state, *WinsockOut, outgoing, intake,
                 nodeAddress, loginWatch, duelling, tncRetry, tncScript, timers,
                 {.askUserInfo = needs.askUserInfo,
                  .delayedWriteCfg = needs.delayedWriteCfg,
                  .lookUpAddress = needs.lookUpAddress,
                  .wakeNode = needs.wakeNode,
                  .onConnected = [this] { loginText.rtbLoginMsg.Clear(); },
                  .onLoggedIn = [this] { LoggedIn(); },
                  .onNodeKnown = needs.onNodeKnown,
                  .onEnding = needs.onEnding,
                  .onEnded = [this] { Ended(); },
                  .onFault = needs.onFault}),
      linkButtons(platform.scheduler, settings, state, connection, loginWatch, outgoing, timers,
                  {.askUserInfo = needs.askUserInfo,
                   .openLocalNetwork =
                       [this, &settings] {
                         if (settings.LocalNetwork) localNetwork.OpenComm2();
                       },
                   .onFault = needs.onFault}),
      login(settings, state, outgoing, connection, duelling, tncLink),
      loginText(settings, state, outgoing, intake, duelling, timers, needs.requests,
                needs.profileAsked),
      loginLinks(loginText.rtbLoginMsg, platform.browser,
                 [show = needs.showMessage](const std::string& link) {
                   show("Nothing opens this link", link);
                 }),
      loginSequence(settings, state, outgoing, intake, needs.requests,
                    {.profileAsked = needs.profileAsked, .ar17Asked = [this] { ar17.Asked(); }}),
      profileHints(settings, state, outgoing),
      ar17(platform.scheduler, state, outgoing, intake, connection, duelling, keepAlive,
           needs.requests,
           {.settled =
                [this, settled = needs.ar17Settled] {
                  commandLine.txtCmdLine.Text.Set({});
                  settled();
                }}),
      linkText(platform.scheduler, calendar, settings, state, connection, tncRetry, intake, timers),
      clockwork(timers, calendar, state, outgoing,
                {.work = needs.clockWork,
                 .requests = needs.requests,
                 .second = [this] { linkText.Tick(); }}),
      tncNotices(state, connection, outgoing, intake, tncLink, tncScript, clockwork, settings),
      keepAlivePanel(keepAlive, settings,
                     {.autoReconnect = [this] { return connection.AutoReconnect.Value.Get(); },
                      .writeCfg = needs.writeCfg}),
      macros(state, {.send = [this](std::string_view text) { return outgoing.Send(text); },
                     .suppressForward = [this] { intake.ForwardSuppressed = true; },
                     .openChat = needs.openChat}),
      latency(platform.scheduler, state) {
  timers.SetDuty(TimerId::Tnc, [this] {
    localNetwork.ReadNetwork();
    tncLink.ReadTNC();
  });
  loginText.onKind = needs.onNodeKnown;
  outgoing.onSent = [this](std::string_view text) {
    if (state.LoggedIn) echoes_.Sent(text);  // what the login asks for is no command
  };
  // A change is shown behind the rule that makes it, not with the next second.
  phaseShown_ =
      state.Phase.Observe([this, &scheduler = platform.scheduler, first = true](LinkPhase) mutable {
        if (!std::exchange(first, false)) showing_ = scheduler.Post([this] { linkText.Tick(); });
      });
}

Session::~Session() = default;

// The user is asked once, not again with each try.
void Session::NothingToTry(const std::function<void()>& ask) {
  timers.Disable(TimerId::Reconnect);
  connection.InterruptReconnect();
  connection.cmdDisconnect.Enabled.Set(false);
  tncRetry.Reset();
  ask();
}

void Session::LoggedIn() {
  commandLine.txtCmdLine.Text.Set({});
  tncScript.LoggedIn();
  if (state.TncMode) tncLink.ShowSession(true);
  keepAlive.LoggedIn();
  ar17.LoggedIn();
}

void Session::Ended() {
  ar17.Forget();
  loginLinks.Clear();
  if (state.TncMode) tncLink.ShowSession(false);
  profileHints.Forget();
  echoes_.Forget();
  macros.Disconnected();
  latency.Disconnected();
}

// Some nodes send back what they ask for.
bool Session::IsPassword(std::string_view line) const {
  return state.LoginRuns() && !outgoing.NodePassword.empty() &&
         core::Trim(line) == outgoing.NodePassword;
}

void Session::ShowReceived(std::string_view line) {
  outgoing.updateText2(IsPassword(line) ? "********" : line);
}

// The echo of a changed prompt ends like a prompt, and is none.
bool Session::IsEcho(std::string_view line) {
  if (IsPassword(line)) return true;
  if (state.IsSpider() && echoes_.IsEcho(line)) return true;
  if (EndsInPrompt(line, NodeKind::Spider, "dxspider >")) echoes_.Prompted();
  return false;
}

}  // namespace session
