#include "session_fixture.h"

#include <algorithm>

#include "session/page_prompt.h"

using namespace std::chrono_literals;

namespace {

session::Chain::Claim TailIf(bool claimed) {
  return claimed ? session::Chain::Claim::Tail : session::Chain::Claim::None;
}

}  // namespace

void Station::Log::Add(std::string_view source, std::string_view text) {
  if (on) entries.push_back(std::string(source) + ": " + std::string(text));
}

Station::Lines Station::Log::Of(std::string_view source) const {
  const std::string start = std::string(source) + ": ";
  Lines lines;
  for (const auto& entry : entries)
    if (entry.starts_with(start)) lines.push_back(entry.substr(start.size()));
  return lines;
}

Station::Station()
    : settings(OwnSettings()),
      node(world, "10.1.2.3", 7300),
      program(world.platform(), calendar, settings, Needs()) {
  world.network.AddHost("node.example", "10.1.2.3");
  AddRows();
  watching_ = program.outgoing.Text2.Observe([this](const core::TextPage::Change& change) {
    const auto& lines = program.outgoing.Text2.Lines();
    for (std::size_t i = lines.size() - change.added; i < lines.size(); ++i)
      log.Add("raw view", lines[i]);
  });
  program.keepAlive.KeepAliveMinutes = 0;  // a node may be silent for as long as a test likes
  program.timers.Begin();
}

core::Settings Station::OwnSettings() {
  core::Settings own;
  own.MyCall = "K1TST-2";
  own.MyName = "ANNA";
  own.MyQth = "Newington, CT";
  own.NodeCall = "N0NODE";
  own.NodeHost = "node.example";
  own.NodePort = "7300";
  own.SendToLog = 0x1FFFFF;  // everything is fed to other programs
  return own;
}

session::Session::Needs Station::Needs() {
  return {.chain = chain,
          .loggers = log,
          .requests = above,
          .clockWork = above,
          .defaultNode =
              [] {
                return session::DefaultNode{"N0DE-1", "127.0.0.1", "7373"};
              },
          .askUserInfo = [this] { ++askedUserInfo; },
          .lookUpAddress = [this] { above.asked.emplace_back("address of MOLVA-1"); },
          .onNodeKnown = [] {},
          .delayedWriteCfg = [this] { ++configurationWrites; },
          .writeCfg = [] {},
          .showMessage = [this](const std::string& heading,
                                const std::string& text) { messages.emplace_back(heading, text); },
          .closeMessage = [this] { ++messagesClosed; },
          .ar17Settled = [this] { ++ar17Settled; },
          .profileAsked = [this] { ++profileAsked; },
          .onEnding = [] {},
          .onFault =
              [this](std::string_view name, std::string_view what) {
                faults.push_back(std::string(name) + ": " + std::string(what));
              },
          .seed = 1,
          .askTncScript = [this] { ++askedTncScript; },
          .localNetworkOff = [this] { ++localNetworkOff; }};
}

Station::Claim Station::Offer(const std::string& row, std::string_view line) {
  log.Add(row, line);
  const auto handler = on.find(row);
  return handler == on.end() ? Claim::None : handler->second(line);
}

void Station::AddRows() {
  const auto own = [this](const char* name) {
    chain.Add(name, [this, name](std::string_view line) { return Offer(name, line); });
  };
  const auto row = [this](const char* name, auto handler) {
    chain.Add(name, [handler](std::string_view line) { return TailIf(handler(line)); });
  };
  using Line = std::string_view;
  row("TncDisconnectNotice",
      [this](Line line) { return program.tncNotices.TncDisconnectNotice(line); });
  row("QRX", [this](Line line) { return program.connection.QRX(line); });
  row("TncConnectedNotice",
      [this](Line line) { return program.tncNotices.TncConnectedNotice(line); });
  row("frmTNC.Netrom", [this](Line line) { return program.tncScript.Netrom(line); });
  row("ConnectToNode", [this](Line line) { return program.connection.ConnectToNode(line); });
  row("RunawayNotice", [this](Line line) {
    program.localNetwork.RunawayNotice(line);
    return false;
  });
  own("First");
  row("LoginPrompt", [this](Line line) { return program.login.LoginPrompt(line); });
  row("PagePrompt", [this](Line line) {
    return session::PagePrompt(line, program.state, program.outgoing, program.intake);
  });
  row("ArFirstPrompt", [this](Line line) { return program.loginSequence.ArFirstPrompt(line); });
  row("ShTNC", [this](Line line) { return program.tncNotices.ShTNC(line); });
  own("Second");
  row("NoName", [this](Line line) { return program.profileHints.NoName(line); });
  row("SetEmail", [this](Line line) { return program.profileHints.SetEmail(line); });
  row("ReconnectedNotice",
      [this](Line line) { return program.tncNotices.ReconnectedNotice(line); });
  row("RetryNotice", [this](Line line) { return program.tncNotices.RetryNotice(line); });
  row("YourInfo", [this](Line line) { return program.profileHints.YourInfo(line); });
  row("ArpcReply", [this](Line line) { return program.ar17.ArpcReply(line); });
  row("SeventyThree", [this](Line line) { return program.duelling.SeventyThree(line); });
  row("InstanceNotice", [this](Line line) { return program.duelling.InstanceNotice(line); });
  own("Third");
  row("updatetxtLoginMsg", [this](Line line) {
    program.loginText.updatetxtLoginMsg(line);
    return false;
  });
  row("LoginSequence", [this](Line line) {
    program.loginSequence.Run(line);
    return false;
  });
  chain.firstRowForSession = 9;
}

void Station::LetPassUntil(platform::Milliseconds sincePress) {
  world.Run(pressedAt_ + sincePress - world.scheduler.Now());
}

void Station::PressConnect() {
  pressedAt_ = world.scheduler.Now();
  program.connection.cmdConnect.Press();
}

void Station::PressDisconnect() { program.connection.cmdDisconnect.Press(); }

void Station::Connect() {
  PressConnect();
  LetPass(2s);
}

void Station::LogIn() {
  Connect();
  ReceiveBytes("login: ");
  Receive("");
  Receive("K1TST-2 de N0NODE 20-Nov-2026 2100Z >");
  log.entries.clear();
  ExpectSent({"K1TST-2"});
}

void Station::LetRetry() {
  const auto before = node.called.size();
  world.RunUntil([&] { return node.called.size() > before; }, 69s);
  LetPass(1s);
}

void Station::ReceiveBytes(std::string_view bytes) {
  node.Say(bytes);
  LetPass(20ms);
}

void Station::NodeCloses() {
  node.Close();
  LetPass(20ms);
}

void Station::NodeResets() {
  node.Reset();
  LetPass(20ms);
}

Station::Lines Station::Sent() {
  LetPass(5ms);
  return node.TakeLines();
}

void Station::ExpectSent(const Lines& lines, const char* file, int line) {
  const Lines sent = Sent();
  if (sent == lines) return;
  ADD_FAILURE_AT(file, line) << "sent: " << testing::PrintToString(sent)
                             << "\nexpected: " << testing::PrintToString(lines);
}

platform::Task<> Station::Step(std::string name, platform::Milliseconds lasting) {
  log.Add("begins", name);
  co_await platform::Delay(lasting);
  log.Add("ends", name);
}

Station::Lines Station::RawView() const {
  const auto& lines = program.outgoing.Text2.Lines();
  return {lines.begin(), lines.end()};
}

long Station::CountInRawView(std::string_view text) const {
  const auto& lines = program.outgoing.Text2.Lines();
  return std::count_if(lines.begin(), lines.end(), [text](const std::string& line) {
    return line.find(text) != std::string::npos;
  });
}
