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
      outgoing(*WinsockOut, [this](std::string_view text) { LineSent(text); }),
      commandLine(outgoing),
      intake(platform.scheduler, *WinsockOut, state, needs.chain, needs.feed,
             {.lineReceived = [this] { keepAlive.LineReceived(); },
              .nulReceived = [this](int nulls) { keepAlive.NulReceived(nulls); },
              .showRaw = [this](std::string_view line) { outgoing.updateText2(line); },
              .isEcho = [this](std::string_view line) { return IsEcho(line); },
              .sendPassword = [this] { outgoing.SendPassword(); },
              .onFault = needs.onFault}),
      nodeAddress(settings,
                  {.defaultNode = needs.defaultNode, .delayedWriteCfg = needs.delayedWriteCfg}),
      duelling(platform.scheduler, state, timers,
               {.showMessage = needs.showMessage,
                .closeMessage = needs.closeMessage,
                .seed = needs.seed}),
      loginWatch(settings, state, *WinsockOut, outgoing, intake, timers,
                 {.giveUp = [this] { connection.GiveUpLogin(); }}),
      connection(platform.scheduler, calendar, settings, state, *WinsockOut, outgoing, intake,
                 nodeAddress, loginWatch, duelling, timers,
                 {.askUserInfo = needs.askUserInfo,
                  .delayedWriteCfg = needs.delayedWriteCfg,
                  .onConnected = [this] { loginText.rtbLoginMsg.Clear(); },
                  .onLoggedIn = [this] { LoggedIn(); },
                  .onNodeKnown = needs.onNodeKnown,
                  .onEnding = needs.onEnding,
                  .onEnded = [this] { Ended(); },
                  .onFault = needs.onFault}),
      linkButtons(
          platform.scheduler, settings, state, connection, loginWatch, outgoing, timers,
          {.askUserInfo = needs.askUserInfo, .openLocalNetwork = [] {}, .onFault = needs.onFault}),
      login(settings, state, outgoing, connection, duelling),
      loginText(settings, state, outgoing, intake, duelling, timers, needs.requests),
      loginSequence(settings, state, outgoing, intake, needs.requests,
                    {.profileAsked = needs.profileAsked}),
      profileHints(settings, state, outgoing),
      ar17(platform.scheduler, state, outgoing, intake, connection, duelling, keepAlive,
           needs.requests,
           {.settled =
                [this, settled = needs.ar17Settled] {
                  commandLine.txtCmdLine.Text.Set({});
                  settled();
                }}),
      linkText(platform.scheduler, calendar, settings, state, connection, intake, timers),
      clockwork(timers, calendar, state, outgoing,
                {.work = needs.clockWork,
                 .requests = needs.requests,
                 .second = [this] { linkText.Tick(); }}),
      keepAlivePanel(keepAlive, settings,
                     {.autoReconnect = [this] { return connection.AutoReconnect.Value.Get(); },
                      .writeCfg = needs.writeCfg}) {
  loginText.onKind = needs.onNodeKnown;
  // A change is shown behind the rule that makes it, not with the next second.
  phaseShown_ =
      state.Phase.Observe([this, &scheduler = platform.scheduler, first = true](LinkPhase) mutable {
        if (!std::exchange(first, false)) showing_ = scheduler.Post([this] { linkText.Tick(); });
      });
}

void Session::LoggedIn() {
  commandLine.txtCmdLine.Text.Set({});
  keepAlive.LoggedIn();
  ar17.LoggedIn();
}

void Session::Ended() {
  ar17.Forget();
  profileHints.Forget();
  echoes_.Forget();
}

void Session::LineSent(std::string_view text) {
  keepAlive.LineSent();
  // What the login asks for is not sent back: it is no command.
  if (state.LoggedIn) echoes_.Sent(text);
}

// The echo of a changed prompt ends like a prompt, and is none.
bool Session::IsEcho(std::string_view line) {
  if (state.IsSpider() && echoes_.IsEcho(line)) return true;
  if (EndsInPrompt(line, NodeKind::Spider, "dxspider >")) echoes_.Prompted();
  return false;
}

}  // namespace session
