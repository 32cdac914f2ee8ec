#include "e2e/running.h"

namespace e2e {
namespace {

class LinkTest : public ClientTest {};

TEST_F(LinkTest, TheClientConnectsAndLogsInByItself) {
  const auto client = StartLoggedIn();
  EXPECT_EQ(proxy->Calls(), 1);
  EXPECT_TRUE(client->IsRunning());
}

TEST_F(LinkTest, ASignalToEndSaysGoodbyeToTheNode) {
  const auto client = StartLoggedIn();
  EXPECT_EQ(client->Terminate(10s), "exit code 0");
  EXPECT_TRUE(Heard("BYE"));
}

TEST_F(LinkTest, ANodeThatHangsUpDoesNotEndTheClient) {
  const auto client = StartLoggedIn();
  proxy->HangUp();
  EXPECT_TRUE(PumpUntil([this] { return !proxy->Linked(); }, kPatience))
      << "the client has not closed its end";
  EXPECT_TRUE(client->IsRunning());
  EXPECT_EQ(client->Terminate(), "exit code 0");
  EXPECT_FALSE(Heard("BYE"));
}

TEST_F(LinkTest, ALinkThatBreaksOrIsClosedIsMadeAgain) {
  const auto client = StartLoggedIn();
  const QString broken = client->LinkTo(proxy->Port());
  proxy->Cut();
  ExpectLoggedInAgain(*client, broken);
  const QString closed = client->LinkTo(proxy->Port());
  EXPECT_NE(closed, broken);
  proxy->HangUp();
  ExpectLoggedInAgain(*client, closed);
  EXPECT_EQ(client->Terminate(), "exit code 0");
}

TEST_F(LinkTest, ASecondCopyLogsInUnderAnotherCall) {
  WriteFile("molva2.cfg", Configuration());
  const auto first = StartLoggedIn();
  const auto second = StartClient();
  EXPECT_TRUE(PumpUntil([this] { return Heard("K1TST-16"); }, kPatience));
  EXPECT_EQ(proxy->Calls(), 2);
  EXPECT_EQ(second->Terminate(), "exit code 0");
  EXPECT_TRUE(first->IsRunning());
  EXPECT_EQ(first->Terminate(), "exit code 0");
}

}  // namespace
}  // namespace e2e
