#include "program/save_condition.h"

#include <gmock/gmock.h>

#include "program/desk.h"

using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

class SaveConditionTest : public testing::Test {
 protected:
  SaveConditionTest() {
    desk.HasUsualConfiguration();
    desk.Start();
  }
  void Change(const std::string& qth) {
    desk.program->settings.MyQth = qth;
    desk.program->DelayedWriteCfg();
    desk.world.Run(3s);
  }
  std::string Text() { return desk.program->conditions.lblText.Caption.Get(); }

  Desk desk;
};

TEST_F(SaveConditionTest, AFullDiskIsToldUntilAWriteSucceeds) {
  Change("Bonn");
  EXPECT_EQ(Text(), "");
  desk.world.files.bytesFree = 0;
  Change("Rome");
  EXPECT_EQ(Text(), "Settings are not saved: the disk is full.");
  Change("Oslo");
  EXPECT_EQ(Text(), "Settings are not saved: the disk is full.");
  desk.world.files.bytesFree = 1'000'000;
  Change("Riga");
  EXPECT_EQ(Text(), "");
}

TEST_F(SaveConditionTest, AFolderThatMayNotBeWrittenIsToldAsSuch) {
  desk.world.files.denied.insert(Desk::kFolder);
  Change("Rome");
  EXPECT_EQ(Text(), "Settings are not saved: no permission to write there.");
}

TEST_F(SaveConditionTest, ItsButtonSavesWhatIsThere) {
  desk.world.files.bytesFree = 0;
  Change("Rome");
  desk.world.files.bytesFree = 1'000'000;
  EXPECT_EQ(desk.program->conditions.cmdHelp.Caption.Get(), "Save now");
  desk.program->conditions.cmdHelp.Press();
  EXPECT_THAT(desk.Content("molva.cfg"), HasSubstr("\"Rome\""));
  EXPECT_EQ(Text(), "");
}

TEST(LogCondition, TellsWhySpotsAreNotLoggedAsLongAsTheyAreNot) {
  program::Conditions conditions;
  program::ShowLogged(conditions, platform::Files::Fault::Denied);
  EXPECT_EQ(conditions.lblText.Caption.Get(),
            "Spots are not logged: no permission to write there.");
  program::ShowLogged(conditions, platform::Files::Fault::Full);
  EXPECT_EQ(conditions.lblText.Caption.Get(), "Spots are not logged: the disk is full.");
  program::ShowLogged(conditions, platform::Files::Fault::None);
  EXPECT_FALSE(conditions.lblText.Visible.Get());
}

}  // namespace
