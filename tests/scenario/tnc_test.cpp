#include <gmock/gmock.h>

#include <chrono>
#include <utility>

#include "practice_tnc/tnc.h"
#include "program/desk.h"
#include "thoroughness.h"

using namespace std::chrono_literals;
using practice_tnc::TncPlan;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

namespace {

constexpr const char* kTncConfiguration =
    "\"Tnc Cluster\",\"N0DE-1\"\r\n"
    "\"Tnc Command\",\"\"\r\n\"Tnc Reply\",\"cmd:\"\r\n\"Tnc TimeOut\",\"5\"\r\n"
    "\"Tnc Command\",\"c n0de-1\"\r\n\"Tnc Reply\",\"*** connected to n0de-1\"\r\n"
    "\"Tnc TimeOut\",\"30\"\r\n"
    "\"Tnc\",-1\r\n\"TncPort\",17\r\n\"TncBaud\",9600\r\n";

// An evening over the air: the whole program, a TNC at its port, and the practice node at the far
// end of every link.
class OverTheAir : public testing::Test {
 protected:
  void Begin(const TncPlan& plan = {}) {
    desk.StartNode();
    Plug(plan);
    desk.HasUsualConfiguration(kTncConfiguration);
    program = &desk.Start();
    program->session.connection.cmdConnect.Press();
  }
  void Plug(const TncPlan& plan = {}) {
    device = &desk.world.serialPorts.Plug("/dev/ttyUSB0", "Practice TNC");
    tnc = std::make_unique<practice_tnc::Tnc>(
        desk.world.scheduler, desk.world.network, plan,
        practice_tnc::Tnc::Wire{
            .toComputer =
                [this](std::string_view bytes) {
                  if (device) device->Feed(bytes);
                },
            .tell = [this](const std::string& what) { events.push_back(what); }});
    Pass();
  }
  void Unplug() {
    device = nullptr;
    desk.world.serialPorts.Unplug("/dev/ttyUSB0");
  }

  bool LogsIn() {
    return desk.world.RunUntil([this] { return program->session.state.LoggedIn; });
  }
  // The login is over, and the node streams.
  bool SpotsCome() {
    return desk.world.RunUntil([this] { return Count("DX de ") >= 3; });
  }
  long Count(std::string_view text) const {
    const auto& lines = program->session.outgoing.Text2.Lines();
    return std::count_if(lines.begin(), lines.end(), [text](const std::string& line) {
      return line.find(text) != std::string::npos;
    });
  }
  session::LinkPhase Phase() const { return program->session.state.Phase.Get(); }
  std::vector<std::string> TakeEvents() { return std::exchange(events, {}); }

  Desk desk;
  program::Program* program = nullptr;
  platform::sim::SimDevice* device = nullptr;
  std::unique_ptr<practice_tnc::Tnc> tnc;
  std::vector<std::string> events;

 private:
  // The bytes on their way to the TNC.
  void Pass() {
    if (device && !device->written.empty()) tnc->Hear(std::exchange(device->written, {}));
    passing_ = desk.world.scheduler.After(10ms, [this] { Pass(); });
  }

  platform::Registration passing_;
};

TEST_F(OverTheAir, ScriptLeadsToASessionThatIsLoggedIn) {
  Begin();
  ASSERT_TRUE(LogsIn());
  ASSERT_TRUE(SpotsCome());
  EXPECT_EQ(Phase(), session::LinkPhase::Connected);
  EXPECT_TRUE(program->session.state.IsSpider());
  EXPECT_EQ(program->session.state.ConnectedNodeCall, "N0DE-1");
  EXPECT_EQ(program->session.tncLink.lblTnc.ForeColour.Get(), core::kGreen);
  EXPECT_THAT(events, ElementsAre("calls N0DE-1", "connected to N0DE-1"));
}

TEST_F(OverTheAir, LostLinkIsTriedAgainAfterAWhileAndLogsIn) {
  Begin({.dropAfter = 30s});
  ASSERT_TRUE(LogsIn());
  ASSERT_TRUE(desk.world.RunUntil([this] { return !program->session.state.LoggedIn; }));
  desk.world.Run(1s);
  EXPECT_THAT(program->session.linkText.state.Caption.Get(),
              AllOf(StartsWith("next try in "), HasSubstr("the TNC says that the link has ended")));
  EXPECT_EQ(program->session.tncLink.lblTnc.ForeColour.Get(), core::kRed);
  ASSERT_TRUE(LogsIn());
  EXPECT_EQ(program->session.connection.DisconnectCount, 1);
}

TEST_F(OverTheAir, AttemptThatIsRetriedOutIsMadeAgainLaterAndLater) {
  Begin({.failures = 3});
  std::vector<platform::Milliseconds> calls;
  for (std::size_t attempt = 1; attempt <= 4; ++attempt) {
    ASSERT_TRUE(desk.world.RunUntil(
        [&] { return std::ranges::count(events, "calls N0DE-1") == std::ptrdiff_t(attempt); },
        30min));
    calls.push_back(desk.world.scheduler.Now());
  }
  EXPECT_LT(calls[1] - calls[0], calls[2] - calls[1]);
  EXPECT_LT(calls[2] - calls[1], calls[3] - calls[2]);
  EXPECT_EQ(Count("*** retry limit exceeded"), 3);
  EXPECT_EQ(Count("Connect attempt time out."), 3);
  ASSERT_TRUE(LogsIn());
  EXPECT_EQ(program->session.tncRetry.ReconnectMinutes, 0);
}

TEST_F(OverTheAir, UserWhoDisconnectsSaysGoodbyeAndFreesTheTnc) {
  Begin();
  ASSERT_TRUE(LogsIn());
  ASSERT_TRUE(SpotsCome());
  program->session.connection.cmdDisconnect.Press();
  desk.world.Run(5s);
  EXPECT_EQ(Count("   <- BYE"), 1);
  EXPECT_FALSE(tnc->Linked());
  EXPECT_FALSE(tnc->Conversing());
  TakeEvents();
  desk.world.Run(1h);
  EXPECT_THAT(TakeEvents(), SizeIs(0));
}

TEST_F(OverTheAir, EndOfTheProgramEndsTheLink) {
  Begin();
  ASSERT_TRUE(LogsIn());
  program->RequestClose(program::Program::Close::WithoutAsking);
  desk.world.Run(10s);
  EXPECT_EQ(desk.quits, 1);
  EXPECT_FALSE(tnc->Linked());
}

TEST_F(OverTheAir, CableThatIsPulledAndPutBackCostsOneWait) {
  Begin();
  ASSERT_TRUE(LogsIn());
  Unplug();
  desk.world.Run(1s);
  EXPECT_FALSE(program->session.state.LoggedIn);
  Plug();
  ASSERT_TRUE(LogsIn());
}

TEST_F(OverTheAir, PortThatAnotherProgramHasIsUsedOnceItIsFree) {
  desk.StartNode();
  Plug();
  device->busy = true;
  desk.HasUsualConfiguration(kTncConfiguration);
  program = &desk.Start();
  program->session.connection.cmdConnect.Press();
  desk.world.Run(1min);
  EXPECT_FALSE(program->session.state.LoggedIn);
  EXPECT_THAT(program->session.linkText.state.Caption.Get(), HasSubstr("busy"));
  device->busy = false;
  ASSERT_TRUE(LogsIn());
}

TEST_F(OverTheAir, GarbageForHoursIsSurvivedAndRetried) {
  Begin({.garbage = true});
  desk.world.Run(180min / static_cast<int>(kOneOf));
  EXPECT_FALSE(program->session.state.LoggedIn);
  EXPECT_TRUE(program->session.connection.AutoReconnect.Value.Get());
  Plug();
  ASSERT_TRUE(desk.world.RunUntil([this] { return program->session.state.LoggedIn; }, 1h));
}

TEST_F(OverTheAir, LinkThatTheOtherEndBeginsAnewIsEndedAndMadeAgain) {
  Begin({.dropAfter = 30s, .reconnects = true});
  ASSERT_TRUE(LogsIn());
  ASSERT_TRUE(desk.world.RunUntil([this] { return !program->session.state.LoggedIn; }));
  desk.world.Run(1s);
  EXPECT_FALSE(tnc->Linked());
  ASSERT_TRUE(LogsIn());
}

}  // namespace
