#include "program/user_info.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using testing::HasSubstr;

namespace {

class UserInfoTest : public testing::Test {
 protected:
  UserInfoTest() {
    form.Show();
    form.txtCall.UserTypes(" k1tst-2 ");
    form.txtName.UserTypes("Anna");
    form.txtQth.UserTypes("Ann Arbor, MI");
  }

  void TypeLocation(const std::array<const char*, 6>& parts) {
    for (std::size_t i = 0; i < parts.size(); ++i) form.txtLatLong[i].UserTypes(parts[i]);
  }
  // As the fields have it.
  std::string Location() const {
    std::string text;
    for (const core::TextBox& part : form.txtLatLong) {
      if (!text.empty() && !part.Text.Get().empty()) text += ' ';
      text += part.Text.Get();
    }
    return text;
  }

  Desk desk;
  program::Program& program = desk.Start();
  program::UserInfo& form = program.userInfo;
};

TEST_F(UserInfoTest, OkStoresWhatWasTypedAndWritesIt) {
  form.txtGrid.UserTypes("en82dg");
  form.txtEmail.UserTypes("anna@example.org");
  form.cmdOk.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(program.settings.MyCall, "K1TST-2");
  EXPECT_EQ(program.settings.MyName, "ANNA");
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"My Call\",\"K1TST-2\"\r\n"));
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"My Grid\",\"EN82DG\"\r\n"));
  EXPECT_EQ(form.lblWho.Caption.Get(), "K1TST-2  ·  ANNA  ·  Ann Arbor, MI");
}

TEST_F(UserInfoTest, CancelStoresNothing) {
  form.cmdCancel.Press();
  EXPECT_FALSE(form.Open.Get());
  EXPECT_EQ(program.settings.MyCall, "");
}

TEST_F(UserInfoTest, SaysWhatIsToBePutRightAndStaysOpen) {
  form.txtCall.UserTypes("anna");
  form.cmdOk.Press();
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("your call"));
  EXPECT_TRUE(form.Open.Get());
  form.txtCall.UserTypes("K1TST");
  form.txtQth.UserTypes(" ");
  form.cmdOk.Press();
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("QTH"));
  form.txtQth.UserTypes("Ann Arbor");
  form.txtGrid.UserTypes("EN8");
  form.cmdOk.Press();
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("grid"));
  EXPECT_EQ(program.settings.MyCall, "");
}

TEST_F(UserInfoTest, PasswordIsKeptInItsOwnFileAndAnEmptyOneRemovesIt) {
  form.txtPassword.UserTypes("se,cret");
  form.cmdOk.Press();
  EXPECT_EQ(desk.Content("molva.pwd"), "\"Node\",\"se,cret\"\r\n");
  EXPECT_TRUE(desk.world.files.privateFiles.contains(desk.File("molva.pwd")));
  EXPECT_EQ(program.session.outgoing.NodePassword, "se,cret");
  EXPECT_EQ(desk.Content("molva.cfg").find("se,cret"), std::string::npos);
  form.Show();
  EXPECT_EQ(form.txtPassword.Text.Get(), "se,cret");
  form.txtPassword.UserTypes("");
  form.cmdOk.Press();
  EXPECT_FALSE(desk.world.files.Exists(desk.File("molva.pwd")));
}

TEST_F(UserInfoTest, LocationIsStoredAndComesBackInItsParts) {
  const char* parts[] = {"42", "17", "n", "83", "44", "W"};
  for (std::size_t i = 0; i < 6; ++i) form.txtLatLong[i].UserTypes(parts[i]);
  form.cmdOk.Press();
  EXPECT_EQ(program.settings.MyLocation, "42 17 N 83 44 W");
  form.Show();
  EXPECT_EQ(form.txtLatLong[2].Text.Get(), "N");
  EXPECT_EQ(form.txtLatLong[3].Text.Get(), "83");
}

TEST_F(UserInfoTest, LocationIsWorkedOutFromTheGridAsItIsTyped) {
  form.txtGrid.UserTypes("EN8");
  EXPECT_EQ(Location(), "");
  EXPECT_FALSE(form.lblFromGrid.Visible.Get());
  form.txtGrid.UserTypes("EN82");
  EXPECT_EQ(Location(), "42 30 N 83 0 W");
  EXPECT_TRUE(form.lblFromGrid.Visible.Get());
  form.txtGrid.UserTypes("EN82D");
  EXPECT_EQ(Location(), "");
  form.txtGrid.UserTypes("en82dg ");
  EXPECT_EQ(Location(), "42 16 N 83 43 W");
  form.cmdOk.Press();
  EXPECT_EQ(program.settings.MyLocation, "42 16 N 83 43 W");
}

TEST_F(UserInfoTest, OwnLocationStaysWhateverGridIsTyped) {
  TypeLocation({"42", "17", "N", "83", "44", "W"});
  form.txtGrid.UserTypes("EN82DG");
  EXPECT_EQ(Location(), "42 17 N 83 44 W");
  EXPECT_FALSE(form.lblFromGrid.Visible.Get());
  form.cmdOk.Press();
  EXPECT_EQ(program.settings.MyLocation, "42 17 N 83 44 W");
  form.Show();
  form.txtGrid.UserTypes("JN58");
  EXPECT_EQ(Location(), "42 17 N 83 44 W");
}

TEST_F(UserInfoTest, LocationOfTheGridFollowsItAgainTheNextTime) {
  form.txtGrid.UserTypes("EN82");
  form.cmdOk.Press();
  form.Show();
  EXPECT_TRUE(form.lblFromGrid.Visible.Get());
  form.txtGrid.UserTypes("JN58");
  EXPECT_EQ(Location(), "48 30 N 11 0 E");
}

TEST_F(UserInfoTest, PartOfALocationThatTheUserChangedIsHisOwn) {
  form.txtGrid.UserTypes("EN82");
  form.txtLatLong[1].UserTypes("17");
  form.txtGrid.UserTypes("JN58");
  EXPECT_EQ(Location(), "42 17 N 83 0 W");
}

TEST_F(UserInfoTest, WhoTakesHisLocationAwayGetsThatOfTheGrid) {
  form.txtGrid.UserTypes("EN82");
  TypeLocation({"10", "", "", "", "", ""});
  EXPECT_EQ(Location(), "10");
  form.txtLatLong[0].UserTypes("");
  EXPECT_EQ(Location(), "42 30 N 83 0 W");
}

TEST_F(UserInfoTest, GridThatWasStoredWithoutALocationGivesOne) {
  form.cmdCancel.Press();
  program.settings.MyGrid = "EN82";
  form.Show();
  EXPECT_EQ(Location(), "42 30 N 83 0 W");
}

TEST_F(UserInfoTest, WrongGridSaysAtOnceWhatIsWrong) {
  const auto problem = [this](const char* grid) {
    form.txtGrid.UserTypes(grid);
    return form.lblProblem.Caption.Get();
  };
  for (const char* good : {"", "e", "EN", "EN8", "EN82", "EN82d", "EN82DG"})
    EXPECT_EQ(problem(good), "") << good;
  EXPECT_THAT(problem("9"), HasSubstr("letters from A to R"));
  EXPECT_THAT(problem("ES"), HasSubstr("letters from A to R"));
  EXPECT_THAT(problem("ENX"), HasSubstr("two digits"));
  EXPECT_THAT(problem("EN82Y"), HasSubstr("A to X"));
  EXPECT_THAT(problem("EN82DG1"), HasSubstr("4 or 6 characters"));
}

TEST_F(UserInfoTest, WrongGridIsNotStored) {
  form.txtGrid.UserTypes("EN82DGX");
  form.cmdOk.Press();
  EXPECT_TRUE(form.Open.Get());
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("4 or 6 characters"));
}

TEST_F(UserInfoTest, LocationThatIsNoPlaceIsRefused) {
  form.txtLatLong[0].UserTypes("95");
  form.cmdOk.Press();
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("location"));
}

TEST_F(UserInfoTest, ZoneIsTheSystemsOrHours) {
  form.chkSystemZone.UserSets(false);
  form.txtGmtOffset.UserTypes("x");
  form.cmdOk.Press();
  EXPECT_THAT(form.lblProblem.Caption.Get(), HasSubstr("hours"));
  form.txtGmtOffset.UserTypes("-5.5");
  form.cmdOk.Press();
  EXPECT_EQ(program.settings.GmtOffset, "-5.5");
  EXPECT_EQ(program.calendar.GmtOffset, "-5.5");
}

TEST_F(UserInfoTest, FailureToSaveIsToldInPlainWords) {
  desk.world.files.denied.insert(desk.File("molva.pwd"));
  form.txtPassword.UserTypes("secret");
  form.cmdOk.Press();
  ASSERT_FALSE(desk.world.dialogs.shown.empty());
  EXPECT_EQ(desk.world.dialogs.shown.back().title, "Sub - SaveUserInfo");
  EXPECT_THAT(desk.world.dialogs.shown.back().text, HasSubstr("Unable to save User Info"));
}

TEST(IsCall, NeedsALetterAndADigitAndNothingStrange) {
  for (const char* call : {"K1TST", "K1TST-2", "EA8/DF4UE", "w1a"})
    EXPECT_TRUE(program::IsCall(call)) << call;
  for (const char* call : {"", "K1", "ANNA", "12345", "K1 TST", "-K1A", "K1TST\n"})
    EXPECT_FALSE(program::IsCall(call)) << call;
}

TEST(IsGrid, HasFourOrSixCharacters) {
  for (const char* grid : {"EN82", "en82dg", "RR99XX"}) EXPECT_TRUE(program::IsGrid(grid)) << grid;
  for (const char* grid : {"", "EN8", "EN82D", "SN82", "EN82DY", "8282"})
    EXPECT_FALSE(program::IsGrid(grid)) << grid;
}

}  // namespace
