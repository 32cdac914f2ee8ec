#include <QLabel>

#include "gui/desk.h"

namespace gui {
namespace {

using ui::Token;

class LinkBarTest : public Desk {
 protected:
  QStringList Buttons() {
    QStringList visible;
    for (const QPushButton* each : window->findChildren<QPushButton*>())
      if (each->isVisible() && each->isEnabled() && each->text().contains("onnect"))
        visible << each->accessibleName();
    return visible;
  }
  QColor Lamp() { return MiddleOf(*Named(*window, "Link lamp")); }
  QString Text(const char* name) { return Named<QLabel>(*window, name)->text(); }
  void Try(const char* button = "Connect") {
    world.network.silentAddresses.insert("127.0.0.1");
    Button(button).click();
    Run(2s);
  }
  void Lose() {
    node.StopListening();
    world.network.CutAll();
    Run(2s);
  }
};

TEST_F(LinkBarTest, ShowsTheButtonThatIsRightNow) {
  Open();
  EXPECT_EQ(Buttons(), QStringList({"Connect"}));
  Button("Connect").click();
  Run(2s);
  EXPECT_EQ(Buttons(), QStringList({"Disconnect"})) << "while it waits for the login";
  node.SayBytes("login: ");
  Run(1s);
  EXPECT_EQ(Buttons(), QStringList({"Disconnect"})) << "while it is connected";
  Button("Disconnect").click();
  Run(3s);
  EXPECT_EQ(Buttons(), QStringList({"Connect"})) << "after the user has ended it";
}

TEST_F(LinkBarTest, ShowsBothButtonsAndNoThirdWhileARetryIsAwaited) {
  Open();
  LogIn();
  Lose();
  EXPECT_EQ(Buttons(), QStringList({"Connect now", "Disconnect"}));
  EXPECT_EQ(Button("Connect now").text(), "Connect now");
  Button("Disconnect").click();
  Run(1s);
  EXPECT_EQ(Buttons(), QStringList({"Connect"}));
  Run(5min);
  EXPECT_EQ(node.calls, 1) << "nothing reconnects after that";
}

TEST_F(LinkBarTest, TheTryThatIsAwaitedIsMadeAtOnceByTheButton) {
  Open();
  LogIn();
  Lose();
  node.ListenAgain();
  Button("Connect now").click();
  Run(2s);
  EXPECT_EQ(node.calls, 2);
  EXPECT_EQ(Buttons(), QStringList({"Disconnect"}));
}

TEST_F(LinkBarTest, OnlyOneButtonTakesThePlaceOfTheOther) {
  Open();
  EXPECT_FALSE(Button("Disconnect").isVisible());
  LogIn();
  EXPECT_FALSE(Button("Connect").isVisible());
}

TEST_F(LinkBarTest, TheLampIsBadCautionOrGoodByTheLink) {
  Open();
  EXPECT_EQ(Lamp(), theme[Token::Bad]);
  Try();
  EXPECT_EQ(Lamp(), theme[Token::Caution]);
  world.network.silentAddresses.clear();
  Button("Disconnect").click();
  Run(3s);
  LogIn();
  EXPECT_EQ(Lamp(), theme[Token::Good]);
  Lose();
  EXPECT_EQ(Lamp(), theme[Token::Bad]);
}

TEST_F(LinkBarTest, TheLampKeepsColoursThatTheUserChose) {
  Open({"\"ColourNodeDisc\",8388736", "\"ColourNodeTrying\",1193046", "\"ColourNodeConn\",1"});
  Run(1s);
  LogIn();
  EXPECT_EQ(Lamp(), QColor(1, 0, 0));
  Lose();
  EXPECT_EQ(Lamp(), QColor(0x80, 0x00, 0x80));
  Try("Connect now");
  EXPECT_EQ(Lamp(), QColor(0x56, 0x34, 0x12));
}

TEST_F(LinkBarTest, SaysHowItStandsWithTheNode) {
  Open();
  EXPECT_EQ(Text("Node"), "N0DE-1");
  EXPECT_EQ(Text("State of the link"), "not connected");
  LogIn();
  Run(10s);
  EXPECT_THAT(Text("State of the link").toStdString(), testing::MatchesRegex("connected 1[0-9] s"));
  EXPECT_THAT(Text("Age of the last line").toStdString(),
              testing::MatchesRegex(".*last line 1[0-9] s ago"));
  Lose();
  EXPECT_THAT(Text("State of the link").toStdString(),
              testing::MatchesRegex("next try in [0-9]+ s .*Connection reset by peer"));
}

TEST_F(LinkBarTest, TheDateIsDimUnlessTheProgramIsDebugged) {
  const auto colour = [this] {
    return Named(*window, "Date in UTC")->palette().color(QPalette::WindowText);
  };
  Open();
  EXPECT_EQ(colour(), theme[Token::DimText]);
  world.files.content["/home/anna/molva/debug.cfg"] = "\"yes\"\r\n";
  Open();
  EXPECT_EQ(colour(), theme[Token::Bad]);
}

TEST_F(LinkBarTest, NamesTheSoftwareOfTheNodeBehindItsCall) {
  Open();
  LogIn();
  EXPECT_EQ(Text("Node software"), "");
  node.Say("Welcome, this is AR-Cluster");
  Run(1s);
  EXPECT_EQ(Text("Node software"), "AR-Cluster");
  const QLabel& software = *Named<QLabel>(*window, "Node software");
  EXPECT_GT(software.x(), Named(*window, "Node")->geometry().right());
  EXPECT_LT(software.geometry().right(), Named(*window, "State of the link")->x());
  EXPECT_EQ(software.palette().color(QPalette::WindowText), theme[Token::DimText]);
  Lose();
  EXPECT_EQ(Text("Node software"), "");
}

TEST_F(LinkBarTest, TheClockIsInUtcAndTheLargestFiguresOfTheWindow) {
  Open();
  world.clock.Set(std::chrono::sys_days{std::chrono::year{2026} / 12 / 31} + 23h + 59min + 59s);
  Run(1100ms);
  EXPECT_EQ(Text("Time in UTC"), "00:00:00");
  const int size = Named(*window, "Time in UTC")->fontInfo().pixelSize();
  for (const QWidget* each : window->findChildren<QWidget*>())
    EXPECT_LE(each->fontInfo().pixelSize(), size);
}

TEST_F(LinkBarTest, WhatANodeSaysNeverWidensTheWindow) {
  Open();
  const QSize before = window->size();
  const std::string endless(200'000, 'W');
  Button("Connect").click();
  Run(2s);
  node.SayBytes("QRX " + endless + "\r");
  Run(1s);
  EXPECT_TRUE(Text("Link").startsWith("QRX WWW"));
  EXPECT_EQ(window->size(), before);
  node.SayBytes("login: ");
  Run(1s);
  node.Say("\r\nK1TST-2 de " + std::string(20, 'W') + " >");
  Run(2s);
  EXPECT_TRUE(Text("Node").startsWith("WWW"));
  EXPECT_EQ(window->size(), before);
  EXPECT_TRUE(Button("Disconnect").isVisible());
  EXPECT_LT(Named(*window, "Time in UTC")->geometry().right(), window->width());
}

}  // namespace
}  // namespace gui
