#include <gmock/gmock.h>

#include <algorithm>

#include "program/desk.h"

using namespace std::chrono_literals;
using platform::Answer;
using testing::ElementsAre;

namespace {

class UnwritableFolder : public testing::Test {
 protected:
  // Starts the program and has it write its configuration twice.
  program::Program& StartAndStore() {
    program::Program& program = desk.Start();
    for (int i = 0; i < 2; ++i) {
      program.DelayedWriteCfg();
      desk.world.Run(3s);
    }
    return program;
  }
  // How many boxes have told of the permission.
  long Told() {
    const auto& shown = desk.world.dialogs.shown;
    return std::count_if(shown.begin(), shown.end(), [](const platform::Message& each) {
      return each.text.find("permission") != std::string::npos;
    });
  }

  Desk desk;
};

TEST_F(UnwritableFolder, IsToldInTheGivenWords) {
  desk.HasUsualConfiguration();
  desk.world.files.readOnly.insert(Desk::kFolder);
  const program::MessageForm& frmMsg = desk.Start().messageForm;
  EXPECT_TRUE(frmMsg.Open.Get());
  EXPECT_EQ(frmMsg.lblHeading.Caption.Get(), "Error writing to HD.");
  EXPECT_THAT(frmMsg.Lines.Get(),
              ElementsAre("             Check Permission", "", "              TEXT 2",
                          "              TEXT 3", "", "              TEXT 5"));
}

TEST_F(UnwritableFolder, IsToldOnceAndTheProgramGoesOn) {
  desk.HasUsualConfiguration("\"AutoStart\",-1\r\n");
  desk.StartNode();
  desk.world.files.readOnly.insert(Desk::kFolder);
  program::Program& program = desk.Start();
  EXPECT_EQ(program.conditions.lblText.Caption.Get(),
            "Settings are not saved: no permission to write there.");
  program.messageForm.cmdClose.Press();
  EXPECT_TRUE(desk.world.RunUntil([&] { return program.session.state.LoggedIn; }, 10s));
  program.DelayedWriteCfg();
  desk.world.Run(3s);
  EXPECT_FALSE(program.messageForm.Open.Get());
  EXPECT_EQ(Told(), 0) << "besides frmMsg";
}

TEST_F(UnwritableFolder, ThatCannotBeMadeIsToldOnce) {
  desk.world.files.readOnly.insert("/home/op");
  program::Program& program = StartAndStore();
  EXPECT_FALSE(program.Loading);
  EXPECT_EQ(program.messageForm.lblHeading.Caption.Get(), "Error writing to HD.");
  EXPECT_EQ(Told(), 0) << "besides frmMsg";
}

TEST_F(UnwritableFolder, IsNotToldAgainToWhomTheNewConfigurationHasToldIt) {
  desk.world.files.folders.insert(Desk::kFolder);
  desk.world.files.readOnly.insert(Desk::kFolder);
  desk.world.dialogs.WillAnswer("Configuration File Not Found - Create One?", Answer::Yes);
  EXPECT_FALSE(StartAndStore().messageForm.Open.Get());
  EXPECT_EQ(Told(), 1);
}

TEST_F(UnwritableFolder, IsOverWithAWriteThatSucceeds) {
  desk.HasUsualConfiguration();
  desk.world.files.readOnly.insert(Desk::kFolder);
  program::Program& program = desk.Start();
  desk.world.files.readOnly.clear();
  program.conditions.cmdHelp.Press();
  EXPECT_FALSE(program.conditions.lblText.Visible.Get());
  desk.world.files.readOnly.insert(Desk::kFolder);
  program.DelayedWriteCfg();
  desk.world.Run(3s);
  EXPECT_EQ(Told(), 1) << "the next fault is another one";
}

TEST_F(UnwritableFolder, FullDiskIsNone) {
  desk.HasUsualConfiguration();
  desk.world.files.bytesFree = 0;
  program::Program& program = desk.Start();
  EXPECT_FALSE(program.Loading);
  EXPECT_FALSE(program.messageForm.Open.Get());
}

}  // namespace
