#include "program/practice_node.h"

#include <gmock/gmock.h>

#include <array>

#include "program/desk.h"

using namespace std::chrono_literals;
using platform::sim::SimPrograms;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace {

constexpr auto kProgram = "molva-practice-node";

class PracticeNodeTest : public testing::Test {
 protected:
  // The practice node is installed; it listens, and says so, that long after it was started.
  void IsInstalled(platform::Milliseconds startsIn = 300ms) {
    desk.world.programs.installed[kProgram] = [this, startsIn](SimPrograms::Child& child) {
      listening_ = desk.world.scheduler.After(startsIn, [this, &child] {
        if (!child.running) return;
        desk.StartNode();
        child.output = "listening on 127.0.0.1:7373\n";
      });
    };
  }
  void Open(const std::string& more = "") {
    desk.HasUsualConfiguration(more);
    desk.Start();
  }
  void Choose(const std::string& call, const std::string& host, const std::string& port) {
    Open("\"SelectedNode\",\"" + call + "\"\r\n\"SelectedNodesAddress\",\"" + host +
         "\"\r\n\"PrimaryPort\",\"" + port + "\"\r\n");
  }
  session::Session& Session() { return desk.program->session; }
  void Connect() { Session().connection.cmdConnect.Press(); }
  bool LogsIn() {
    return desk.world.RunUntil([this] { return Session().state.LoggedIn; }, 2min);
  }
  bool Opens() {
    return desk.world.RunUntil(
        [this] { return Session().WinsockOut->State() != platform::SocketState::Closed; }, 10s);
  }
  const auto& Started() { return desk.world.programs.started; }
  std::string RawView() {
    std::string all;
    for (const auto& line : Session().outgoing.Text2.Lines()) all += line + "\n";
    return all;
  }

  Desk desk;

 private:
  platform::Registration listening_;
};

TEST_F(PracticeNodeTest, IsStartedWhereItIsChosenAndNothingListens) {
  IsInstalled();
  Open();
  Connect();
  EXPECT_TRUE(LogsIn());
  ASSERT_THAT(Started(), SizeIs(1));
  EXPECT_EQ(Started()[0]->name, kProgram);
  EXPECT_THAT(Started()[0]->arguments,
              ElementsAre("--call", "N0DE-1", "--address", "127.0.0.1", "--port", "7373"));
}

TEST_F(PracticeNodeTest, IsNotStartedBeforeItIsCalled) {
  IsInstalled();
  Open();
  desk.world.Run(1h);
  EXPECT_THAT(Started(), IsEmpty());
}

TEST_F(PracticeNodeTest, IsCalledOnlyOnceItListens) {
  IsInstalled(4s);
  Open();
  Connect();
  EXPECT_TRUE(LogsIn());
  EXPECT_THAT(RawView(), Not(HasSubstr("refused")));
}

TEST_F(PracticeNodeTest, IsNotStartedWhereSomethingListens) {
  IsInstalled();
  desk.StartNode();
  Open();
  Connect();
  EXPECT_TRUE(LogsIn());
  EXPECT_THAT(Started(), IsEmpty());
}

TEST_F(PracticeNodeTest, IsNotStartedForAnotherNode) {
  const std::vector<std::array<std::string, 3>> others = {{"N0NODE", "127.0.0.1", "7373"},
                                                          {"N0DE-1", "10.1.2.3", "7373"},
                                                          {"N0DE-1", "127.0.0.1", "7300"}};
  for (const auto& [call, host, port] : others) {
    IsInstalled();
    Choose(call, host, port);
    Connect();
    EXPECT_TRUE(Opens()) << call << host << port;
    EXPECT_THAT(Started(), IsEmpty()) << call << host << port;
  }
}

TEST_F(PracticeNodeTest, IsStartedWhereItIsChosenByHand) {
  IsInstalled();
  Choose("N0DE-1", "127.0.0.1", "7373");
  Connect();
  EXPECT_TRUE(LogsIn());
  EXPECT_THAT(Started(), SizeIs(1));
}

TEST_F(PracticeNodeTest, ThatIsNotInstalledIsCalledWithoutAWait) {
  Open();
  Connect();
  desk.world.Run(600ms);
  EXPECT_THAT(Started(), SizeIs(1));
  EXPECT_THAT(RawView(), HasSubstr("Connection refused"));
}

TEST_F(PracticeNodeTest, ThatSaysNothingIsWaitedForAFewSecondsOnly) {
  desk.world.programs.installed[kProgram] = [](SimPrograms::Child&) {};
  Open();
  Connect();
  desk.world.Run(5s);
  EXPECT_THAT(RawView(), Not(HasSubstr("refused")));
  desk.world.Run(1s);
  EXPECT_THAT(RawView(), HasSubstr("Connection refused"));
}

TEST_F(PracticeNodeTest, ThatEndsAtOnceIsWaitedForNoLonger) {
  desk.world.programs.installed[kProgram] = [](SimPrograms::Child& child) {
    child.running = false;
  };
  Open();
  Connect();
  desk.world.Run(600ms);
  EXPECT_THAT(RawView(), HasSubstr("Connection refused"));
}

TEST_F(PracticeNodeTest, ThatHasEndedIsStartedAgainByTheNextTry) {
  IsInstalled();
  Open();
  Connect();
  ASSERT_TRUE(LogsIn());
  Started()[0]->running = false;
  desk.StopNode();
  desk.world.network.CutAll();
  desk.world.Run(1s);
  ASSERT_FALSE(Session().state.LoggedIn);
  EXPECT_TRUE(LogsIn());
  EXPECT_THAT(Started(), SizeIs(2));
}

TEST_F(PracticeNodeTest, ThatTheUserDoesNotWaitForIsNotCalled) {
  IsInstalled(3s);
  Open();
  Connect();
  desk.world.Run(1s);
  ASSERT_THAT(Started(), SizeIs(1));
  Session().connection.cmdDisconnect.Press();
  EXPECT_FALSE(Opens());
}

TEST_F(PracticeNodeTest, RunsOnBehindADisconnectAndEndsWithTheProgram) {
  IsInstalled();
  Open();
  Connect();
  ASSERT_TRUE(LogsIn());
  Session().connection.cmdDisconnect.Press();
  desk.world.Run(1min);
  EXPECT_TRUE(Started()[0]->running);
  desk.program.reset();
  EXPECT_FALSE(Started()[0]->running);
}

}  // namespace
