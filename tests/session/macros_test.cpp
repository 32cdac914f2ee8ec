#include "session/macros.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class MacrosTest : public testing::Test {
 protected:
  MacrosTest() { state.ConnectedNodeCall = "N0NODE"; }

  bool Receive(std::string_view line) { return macros.UserMacro(line); }
  std::string Field(std::size_t index) const { return macros.txtMacro[index].Text.Get(); }
  std::string Title() const { return macros.fraMacros.Caption.Get(); }

  session::SessionState state;
  bool linkIsUp = true;
  std::vector<std::string> sent;
  int suppressed = 0;
  int chatsOpened = 0;
  session::Macros macros{state,
                         {.send =
                              [this](std::string_view text) {
                                if (linkIsUp) sent.emplace_back(text);
                                return linkIsUp;
                              },
                          .suppressForward = [this] { ++suppressed; },
                          .openChat = [this] { ++chatsOpened; }}};
};

TEST_F(MacrosTest, PanelsAreHiddenAtFirst) {
  EXPECT_EQ(macros.cmdMacro[0].Caption.Get(), "Get Macros");
  EXPECT_FALSE(macros.fraSendMacro.Visible.Get());
  EXPECT_FALSE(macros.fraMacros.Visible.Get());
}

TEST_F(MacrosTest, FirstClickShowsThePanelAndAsksTheNode) {
  macros.cmdMacro[0].Press();
  macros.cmdMacro[0].Press();
  EXPECT_TRUE(macros.fraSendMacro.Visible.Get());
  EXPECT_THAT(sent, ElementsAre("sh/macro"));
  EXPECT_EQ(chatsOpened, 0);
}

TEST_F(MacrosTest, ClickWithoutALinkIsNotTheFirst) {
  linkIsUp = false;
  macros.cmdMacro[0].Press();
  EXPECT_TRUE(macros.fraSendMacro.Visible.Get());
  linkIsUp = true;
  macros.cmdMacro[0].Press();
  EXPECT_THAT(sent, ElementsAre("sh/macro"));
}

TEST_F(MacrosTest, MacrosThatAreLoadedAreNotAskedFor) {
  Receive("Macro 0 = sh/dx 10");
  macros.cmdMacro[0].Press();
  EXPECT_TRUE(macros.fraSendMacro.Visible.Get());
  EXPECT_THAT(sent, IsEmpty());
}

TEST_F(MacrosTest, FirstClickOnSpiderOpensTheChat) {
  state.Kind = session::NodeKind::Spider;
  macros.cmdMacro[0].Press();
  macros.cmdMacro[0].Press();
  EXPECT_EQ(chatsOpened, 1);
}

TEST_F(MacrosTest, ButtonSendsItsField) {
  macros.txtMacro[3].UserTypes("sh/wwv");
  macros.cmdMacro[3].Press();
  EXPECT_THAT(sent, ElementsAre("sh/wwv"));
}

TEST_F(MacrosTest, ReturnSendsTheField) {
  macros.txtMacro[0].UserTypes("sh/dx");
  macros.txtMacro[9].UserTypes("sh/wcy");
  macros.txtMacro[0].UserPressesReturn();
  macros.txtMacro[9].UserPressesReturn();
  EXPECT_THAT(sent, ElementsAre("sh/dx", "sh/wcy"));
}

TEST_F(MacrosTest, UsersChangeMakesThemLocalMacros) {
  Receive("Macro 0 = sh/dx 10");
  ASSERT_EQ(Title(), "Cluster Macros @ N0NODE");
  macros.txtMacro[5].UserTypes("x");
  EXPECT_EQ(Title(), "Local Macros");
}

TEST_F(MacrosTest, ListFillsTheFieldsUpToThePrompt) {
  EXPECT_TRUE(Receive("Macros of K1TST-2:"));
  EXPECT_TRUE(Receive("Macro 0 = sh/dx 10"));
  EXPECT_TRUE(Receive("Macro 1: sh/wwv"));
  EXPECT_TRUE(Receive("Macro 2 sh/wcy "));
  EXPECT_TRUE(Receive("3: dx/20"));
  EXPECT_TRUE(Receive(" 4) dx/40"));
  EXPECT_TRUE(Receive("5 = dx/80=x"));
  EXPECT_TRUE(Receive("9."));
  EXPECT_FALSE(Receive("K1TST-2 de N0NODE arc >"));
  EXPECT_FALSE(Receive("6: too late"));
  EXPECT_EQ(Field(0), "sh/dx 10");
  EXPECT_EQ(Field(1), "sh/wwv");
  EXPECT_EQ(Field(2), "sh/wcy");
  EXPECT_EQ(Field(3), "dx/20");
  EXPECT_EQ(Field(4), "dx/40");
  EXPECT_EQ(Field(5), "dx/80=x");
  EXPECT_EQ(Field(6), "");
  EXPECT_TRUE(macros.MacrosLoaded);
  EXPECT_TRUE(macros.fraMacros.Visible.Get());
  EXPECT_EQ(Title(), "Cluster Macros @ N0NODE");
}

TEST_F(MacrosTest, LinesOfTheListAreNotForwarded) {
  Receive("Macro 0 = a");
  Receive("1: b");
  EXPECT_EQ(suppressed, 2);
  Receive("K1TST-2 de N0NODE arc >");
  EXPECT_EQ(suppressed, 2);
}

TEST_F(MacrosTest, ListEndsAtTheFirstLineThatIsNoMacro) {
  for (const std::string_view line :
       {"", "=", "x: y", "12: y", "5 macros", "5", "-1: y", "\xff", "Hello K1TST"}) {
    EXPECT_TRUE(Receive("Macro 0 = a"));
    EXPECT_FALSE(Receive(line)) << line;
    EXPECT_FALSE(Receive("1: b")) << line;
  }
  EXPECT_EQ(Field(1), "");
}

TEST_F(MacrosTest, WithoutAListNothingIsClaimed) {
  for (const std::string_view line :
       {"0: x", "macro 0 = x", " Macro 0 = x", "K1TST de N0NODE arc >"})
    EXPECT_FALSE(Receive(line)) << line;
  EXPECT_FALSE(macros.MacrosLoaded);
}

TEST_F(MacrosTest, PromptThatBeginsLikeAListIsAPrompt) {
  EXPECT_FALSE(Receive("Macro de N0NODE arc >"));
  EXPECT_FALSE(macros.MacrosLoaded);
}

TEST_F(MacrosTest, FieldsThatTheListDoesNotNameStay) {
  macros.txtMacro[7].UserTypes("mine");
  Receive("Macro 0 = a");
  EXPECT_EQ(Field(7), "mine");
}

TEST_F(MacrosTest, EndOfTheSessionHidesThePanelsAndForgetsThatTheyWereLoaded) {
  macros.cmdMacro[0].Press();
  Receive("Macro 0 = a");
  macros.cmdMacro[0].Caption.Set("other");
  macros.Disconnected();
  EXPECT_FALSE(macros.fraSendMacro.Visible.Get());
  EXPECT_FALSE(macros.fraMacros.Visible.Get());
  EXPECT_EQ(macros.cmdMacro[0].Caption.Get(), "Get Macros");
  EXPECT_FALSE(Receive("1: b"));
  macros.cmdMacro[0].Press();
  EXPECT_THAT(sent, ElementsAre("sh/macro", "sh/macro"));
}

}  // namespace
