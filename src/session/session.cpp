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
      outgoing(*WinsockOut, [this] { keepAlive.LineSent(); }),
      commandLine(outgoing),
      intake(platform.scheduler, *WinsockOut, state, needs.chain, needs.feed,
             {.lineReceived = [this] { keepAlive.LineReceived(); },
              .nulReceived = [this](int nulls) { keepAlive.NulReceived(nulls); },
              .showRaw = [this](std::string_view line) { outgoing.updateText2(line); },
              .sendPassword = [this] { outgoing.SendPassword(); },
              .onFault = needs.onFault}),
      nodeAddress(settings,
                  {.defaultNode = needs.defaultNode, .delayedWriteCfg = needs.delayedWriteCfg}),
      connection(platform.scheduler, calendar, settings, state, *WinsockOut, outgoing, intake,
                 nodeAddress, timers,
                 {.askUserInfo = needs.askUserInfo,
                  .delayedWriteCfg = needs.delayedWriteCfg,
                  .onLoggedIn =
                      [this] {
                        commandLine.txtCmdLine.Text.Set({});
                        keepAlive.LoggedIn();
                      },
                  .onNodeKnown = needs.onNodeKnown,
                  .onFault = needs.onFault}),
      login(settings, state, outgoing, connection),
      linkText(platform.scheduler, calendar, settings, state, connection, intake, timers),
      keepAlivePanel(keepAlive, settings,
                     {.autoReconnect = [this] { return connection.AutoReconnect.Value.Get(); },
                      .writeCfg = needs.writeCfg}) {
  timers.SetDuty(TimerId::Clock, [this] { linkText.Tick(); });
  // A change is shown behind the rule that makes it, not with the next second.
  phaseShown_ =
      state.Phase.Observe([this, &scheduler = platform.scheduler, first = true](LinkPhase) mutable {
        if (!std::exchange(first, false)) showing_ = scheduler.Post([this] { linkText.Tick(); });
      });
}

}  // namespace session
