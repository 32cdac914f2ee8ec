#include <QLabel>

#include "gui/desk.h"

namespace gui {
namespace {

class ConditionsTest : public Desk {
 protected:
  QLabel& Text() { return *Named<QLabel>(*window, "Condition"); }
  QLabel& More() { return *Named<QLabel>(*window, "More conditions"); }
  void Lose() {
    node.StopListening();
    world.network.CutAll();
    Run(2s);
  }
};

TEST_F(ConditionsTest, NoneTakesNoRoom) {
  Open();
  EXPECT_FALSE(Text().isVisible());
  EXPECT_EQ(Tabs().y(), 48) << "right under the link bar";
}

TEST_F(ConditionsTest, ALostLinkIsALineUnderTheLinkBarWhoseButtonHelps) {
  Open();
  LogIn();
  Lose();
  EXPECT_TRUE(Text().isVisible());
  EXPECT_EQ(Text().accessibleName(),
            "Condition: No link to the node: Connection reset by peer. It is tried again by "
            "itself.");
  EXPECT_GT(Tabs().y(), 48);
  EXPECT_FALSE(More().isVisible());
  const int callsBefore = node.calls;
  node.ListenAgain();
  Button("Connect now").click();
  Run(2s);
  EXPECT_EQ(node.calls, callsBefore + 1);
  EXPECT_FALSE(Text().isVisible());
}

TEST_F(ConditionsTest, OthersAreCountedAndToldByTheToolTip) {
  Open();
  for (const char* each : {"One.", "Two.", "Three."})
    program->conditions.Raise({.key = each, .text = each, .button = ""});
  Run(200ms);
  EXPECT_EQ(Text().text(), "Three.");
  EXPECT_EQ(More().text(), "+2");
  EXPECT_EQ(More().toolTip(), "Two.\nOne.");
}

TEST_F(ConditionsTest, TheFocusStaysWhereItIsAndALongTextWidensNothing) {
  Open();
  CommandLine().setFocus();
  const QSize before = window->size();
  program->conditions.Raise(
      {.key = "a", .text = std::string(100'000, 'W'), .button = "Help", .help = [] {}});
  Run(200ms);
  EXPECT_TRUE(CommandLine().hasFocus());
  EXPECT_EQ(window->size(), before);
  EXPECT_TRUE(Button("Help").isVisible());
  EXPECT_LT(Button("Help").geometry().right(), window->width());
}

}  // namespace
}  // namespace gui
