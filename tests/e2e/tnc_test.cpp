#include <QRegularExpression>

#include "e2e/running.h"

namespace e2e {
namespace {

// A client whose way to the node is the practice TNC, on a pseudo-terminal.
class TncLinkTest : public ClientTest {
 protected:
  TncLinkTest() {
    StartTnc();
    WriteFile("molva.cfg",
              Configuration() +
                  "\"Tnc Cluster\",\"N0DE-1\"\r\n"
                  "\"Tnc Command\",\"\"\r\n\"Tnc Reply\",\"cmd:\"\r\n\"Tnc TimeOut\",\"20\"\r\n"
                  "\"Tnc Command\",\"c n0de-1\"\r\n\"Tnc Reply\",\"connected to n0de-1\"\r\n"
                  "\"Tnc TimeOut\",\"20\"\r\n"
                  "\"Tnc\",-1\r\n\"TncPort\",3\r\n\"TncBaud\",9600\r\n");
  }

  void StartTnc() {
    tnc = std::make_unique<Running>(
        PRACTICE_TNC,
        QStringList{"--node", QString("127.0.0.1:%1").arg(proxy->Port()), "--try-seconds", "0.1"},
        temporary.path());
    static const QRegularExpression kPath("for ports\\.cfg: \"17\",\"(/dev/[^\"]+)\"");
    PumpUntil([this] { return kPath.match(tnc->Output()).hasMatch(); }, kPatience);
    const QString path = kPath.match(tnc->Output()).captured(1);
    ASSERT_FALSE(path.isEmpty()) << "the TNC has no port";
    WriteFile("ports.cfg", "\"3\",\"" + path.toUtf8() + "\"\r\n");
  }
  std::unique_ptr<Running> StartOverTheAir() {
    auto client = StartClient();
    EXPECT_TRUE(PumpUntil([this] { return Heard("K1TST-2") && SpotsFlow(); }, kPatience))
        << "the client has not logged in";
    return client;
  }
  bool TncTells(const char* what) { return tnc->Output().contains(what); }

  std::unique_ptr<Running> tnc;
};

TEST_F(TncLinkTest, TheScriptLeadsToTheNodeAndTheClientLogsIn) {
  const auto client = StartOverTheAir();
  EXPECT_TRUE(TncTells("connected to N0DE-1"));
  EXPECT_TRUE(client->IsRunning());
}

TEST_F(TncLinkTest, ASignalToEndSaysGoodbyeAndEndsTheLink) {
  const auto client = StartOverTheAir();
  EXPECT_EQ(client->Terminate(), "exit code 0");
  EXPECT_TRUE(PumpUntil([this] { return TncTells("disconnected from N0DE-1"); }, kPatience));
  EXPECT_TRUE(Heard("BYE"));
}

TEST_F(TncLinkTest, ATncThatVanishesDoesNotEndTheClient) {
  const auto client = StartOverTheAir();
  EXPECT_EQ(tnc->Terminate(), "exit code 0");
  EXPECT_TRUE(PumpUntil([this] { return !proxy->Linked(); }, kPatience));
  EXPECT_TRUE(client->IsRunning());
  EXPECT_EQ(client->Terminate(), "exit code 0");
}

TEST_F(TncLinkTest, TheTncServesOneClientAfterTheOther) {
  EXPECT_EQ(StartOverTheAir()->Terminate(), "exit code 0");
  PumpUntil([this] { return TncTells("disconnected from N0DE-1"); }, kPatience);
  const auto client = StartClient();
  EXPECT_TRUE(PumpUntil([this] { return proxy->Calls() == 2; }, kPatience));
}

}  // namespace
}  // namespace e2e
