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
               .inputCharacter = [this](std::uint8_t byte) { intake.InputCharacter(byte); },
               .showRaw = [this](std::string_view line) { outgoing.updateText2(line); },
               .onFault = needs.onFault}),
      localNetwork(platform.serialPorts, settings, timers,
                   {.portPath = needs.portPath,
                    .claimedHere = needs.localCommand,
                    .sendAsIs = [this](std::string_view line) { outgoing.SendAsIs(line); },
                    .onFault = needs.onFault}),
      localFeed(settings, state, needs.loggers,
                {.rcvdPrompt = needs.rcvdPrompt,
                 .sendRS232 = [this](std::string_view line) { localNetwork.SendRS232(line); },
                 .onFault = needs.onFault}),
      commandLine(outgoing, state,
                  {.sendAutobaud = [this] { tncLink.SendAutobaud(); },
                   .weatherInFront = needs.weatherInFront,
                   .beginFreshWeatherPage = needs.beginFreshWeatherPage}),
      intake(platform.scheduler, *WinsockOut, state, needs.chain, localFeed,
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
                      .writeCfg = needs.writeCfg}),
      macros(state, {.send = [this](std::string_view text) { return outgoing.Send(text); },
                     .rcvdPrompt = needs.rcvdPrompt,
                     .suppressForward = [this] { intake.ForwardSuppressed = true; },
                     .openChat = needs.openChat}),
      latency(platform.scheduler, needs.rcvdPrompt) {
  timers.SetDuty(TimerId::SerialPoll, [this] {
    localNetwork.ReadNetwork();
    tncLink.ReadTNC();
  });
  timers.SetDuty(TimerId::Clock, [this] { linkText.Tick(); });
  // A change is shown behind the rule that makes it, not with the next second.
  phaseShown_ =
      state.Phase.Observe([this, &scheduler = platform.scheduler, first = true](LinkPhase) mutable {
        if (!std::exchange(first, false)) showing_ = scheduler.Post([this] { linkText.Tick(); });
      });
}

}  // namespace session
