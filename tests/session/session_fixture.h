#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/dates.h"
#include "core/settings.h"
#include "fake_chain.h"
#include "fake_node.h"
#include "platform/sim/world.h"
#include "session/session.h"

// The prompts of a node of either kind.
inline constexpr const char* kArPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z   arc >";
inline constexpr const char* kSpiderPrompt = "K1TST-2 de N0NODE 20-Nov-2026 2101Z dxspider >";

// A station whose operator K1TST-2 uses the node N0NODE at node.example:7300, in a simulated world.
//
// Its chain has the rows of the session itself, in their order, and three that a test can lay hands
// on: First before LoginPrompt, Second behind it, and Third before updatetxtLoginMsg.
class Station {
 public:
  using Claim = session::Chain::Claim;
  using Lines = std::vector<std::string>;

  // Everything in the order in which it happened, each with its source in front: "First: <line>",
  // "raw view: <line>", "feed: <line>", "forwarded: <line>".
  class Log : public session::LoggerServer {
   public:
    bool on = true;
    Lines entries;
    void Add(std::string_view source, std::string_view text);
    bool EnableLogger(int) override { return true; }
    int LoggersConnected() const override { return 1; }
    void LoggerRaw(std::string_view line) override { Add("feed", line); }
    void SendLogger(std::string_view line) override { Add("forwarded", line); }
    // What that source had to say.
    Lines Of(std::string_view source) const;
  };

  // What was asked of the program above the session.
  class Above : public session::LoginRequests, public session::ClockWork {
   public:
    Lines asked;
    void GetEm() override { asked.emplace_back("GetEm"); }
    void GetLatestVersion() override { asked.emplace_back("GetLatestVersion"); }
    void AskSunTimes() override { asked.emplace_back("AskSunTimes"); }
    void HourlyWork() override { ++hours; }
    void Sun() override { ++minutes; }
    void DayChange() override { asked.emplace_back("DayChange"); }
    void EnableLoggingSpots() override { asked.emplace_back("EnableLoggingSpots"); }
    int hours = 0;
    int minutes = 0;
  };

  Station();

  void LetPass(platform::Milliseconds time) { world.Run(time); }
  // Lets time pass up to that moment after the connect button was pressed.
  void LetPassUntil(platform::Milliseconds sincePress);

  void PressConnect();
  void PressDisconnect();
  // Presses, and lets the link come up.
  void Connect();
  // The same up to the node's greeting behind the login; nothing of it stays in the log.
  void LogIn();
  // Lets time pass up to the next call at the node, or for an interval and a little more, and then
  // until the link is up.
  void LetRetry();

  // A line from the node, or bytes as they stand; comes back when they have arrived.
  void Receive(std::string_view line) { ReceiveBytes(std::string(line) + "\r\n"); }
  void ReceiveBytes(std::string_view bytes);
  void NodeCloses();
  void NodeResets();

  // The lines that went to the node since the last call.
  Lines Sent();
  void ExpectSent(const Lines& lines, const char* file = __builtin_FILE(),
                  int line = __builtin_LINE());
  void ExpectNothingSent(const char* file = __builtin_FILE(), int line = __builtin_LINE()) {
    ExpectSent({}, file, line);
  }

  // What the rows First, Second and Third do with a line. They log it in any case.
  std::map<std::string, FakeChain::Handler> on;

  // A step for Intake::PushStep that notes itself when that time has passed.
  platform::Task<> Step(std::string name, platform::Milliseconds lasting);

  Lines RawView() const;
  // How many lines of the raw view hold the text.
  long CountInRawView(std::string_view text) const;
  std::string txtNode() const { return program.state.txtNode.Caption.Get(); }
  platform::SocketState SocketState() const { return program.WinsockOut->State(); }
  platform::Milliseconds RetryInterval() const {
    return program.timers.Interval(session::TimerId::Reconnect);
  }

  platform::sim::World world;
  core::Calendar calendar{world.clock};
  core::Settings settings;
  FakeNode node;
  FakeChain chain;
  Log log;
  Above above;
  std::vector<std::pair<std::string, std::string>> messages;  // heading and text
  int messagesClosed = 0;
  int ar17Settled = 0;
  int profileAsked = 0;
  Lines faults;  // "<name>: <what>"
  int askedUserInfo = 0;
  int askedTncScript = 0;
  int localNetworkOff = 0;
  int configurationWrites = 0;
  session::Session program;

 private:
  static core::Settings OwnSettings();
  Claim Offer(const std::string& row, std::string_view line);
  void AddRows();
  session::Session::Needs Needs();

  platform::Milliseconds pressedAt_{0};
  platform::Registration watching_;
};

class SessionFixture : public testing::Test, protected Station {};
