#include "program/conditions.h"

#include <gmock/gmock.h>

using program::Conditions;

namespace {

class ConditionsTest : public testing::Test {
 protected:
  std::string Text() const { return conditions.lblText.Caption.Get(); }
  std::string More() const { return conditions.lblMore.Caption.Get(); }

  Conditions conditions;
};

TEST_F(ConditionsTest, WithoutOneNothingIsOnShow) {
  EXPECT_FALSE(conditions.lblText.Visible.Get());
  EXPECT_FALSE(conditions.lblMore.Visible.Get());
  EXPECT_FALSE(conditions.cmdHelp.Visible.Get());
}

TEST_F(ConditionsTest, TheNewestIsOnTopAndTheOthersAreCounted) {
  conditions.Raise({.key = "a", .text = "Disk full.", .button = ""});
  EXPECT_EQ(Text(), "Disk full.");
  EXPECT_FALSE(conditions.lblMore.Visible.Get());
  conditions.Raise({.key = "b", .text = "No link.", .button = ""});
  conditions.Raise({.key = "c", .text = "Old file.", .button = ""});
  EXPECT_EQ(Text(), "Old file.");
  EXPECT_EQ(More(), "+2");
  EXPECT_EQ(conditions.lblMore.ToolTip.Get(), "No link.\nDisk full.");
  EXPECT_TRUE(conditions.lblMore.Visible.Get());
}

TEST_F(ConditionsTest, OneThatIsOverIsGoneWhereverItStood) {
  conditions.Raise({.key = "a", .text = "Disk full.", .button = ""});
  conditions.Raise({.key = "b", .text = "No link.", .button = ""});
  conditions.Raise({.key = "c", .text = "Old file.", .button = ""});
  conditions.Clear("b");
  EXPECT_EQ(Text(), "Old file.");
  EXPECT_EQ(More(), "+1");
  conditions.Clear("c");
  EXPECT_EQ(Text(), "Disk full.");
  conditions.Clear("never raised");
  conditions.Clear("a");
  EXPECT_FALSE(conditions.lblText.Visible.Get());
  EXPECT_EQ(Text(), "");
}

TEST_F(ConditionsTest, OneThatHoldsAlreadyIsToldAnewWhereItStands) {
  conditions.Raise({.key = "a", .text = "No link: refused.", .button = ""});
  conditions.Raise({.key = "b", .text = "Disk full.", .button = ""});
  conditions.Raise({.key = "a", .text = "No link: reset.", .button = ""});
  EXPECT_EQ(Text(), "Disk full.");
  EXPECT_EQ(conditions.lblMore.ToolTip.Get(), "No link: reset.");
}

TEST_F(ConditionsTest, TheButtonIsThatOfTheNewest) {
  std::vector<std::string> pressed;
  conditions.Raise(
      {.key = "a", .text = "x", .button = "Help a", .help = [&] { pressed.push_back("a"); }});
  EXPECT_EQ(conditions.cmdHelp.Caption.Get(), "Help a");
  EXPECT_TRUE(conditions.cmdHelp.Visible.Get());
  conditions.Raise({.key = "b", .text = "y", .button = ""});
  EXPECT_FALSE(conditions.cmdHelp.Visible.Get());
  conditions.cmdHelp.Press();
  EXPECT_TRUE(pressed.empty());
  conditions.Clear("b");
  conditions.cmdHelp.Press();
  EXPECT_EQ(pressed, std::vector<std::string>{"a"});
}

TEST_F(ConditionsTest, AButtonMayEndItsOwnCondition) {
  conditions.Raise(
      {.key = "a", .text = "x", .button = "Help", .help = [this] { conditions.Clear("a"); }});
  conditions.cmdHelp.Press();
  EXPECT_FALSE(conditions.lblText.Visible.Get());
}

}  // namespace
