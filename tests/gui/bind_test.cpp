#include "ui/bind.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "gui/by_name.h"
#include "platform/sim/world.h"
#include "ui/theme.h"

namespace gui {
namespace {

using namespace std::chrono_literals;

class BindTest : public ::testing::Test {
 protected:
  void Frame() {
    world.Run(ui::Frames::kLatestFrame);
    QApplication::processEvents();
  }

  platform::sim::World world;
  ui::Frames frames{world.scheduler};
};

TEST_F(BindTest, AWidgetShowsItsModelAtOnceAndThenWithTheNextFrame) {
  core::Label model;
  model.Caption.Set("before");
  QLabel widget;
  ui::BindLabel(&widget, model, frames);
  EXPECT_EQ(widget.text(), "before");
  model.Caption.Set("after");
  EXPECT_EQ(widget.text(), "before");
  Frame();
  EXPECT_EQ(widget.text(), "after");
}

TEST_F(BindTest, ALabelIsInTheColourThatTheUserChose) {
  core::Label model;
  QLabel widget;
  ui::BindLabel(&widget, model, frames);
  const auto colour = [&](core::Colour stored) {
    model.ForeColour.Set(stored);
    Frame();
    widget.ensurePolished();
    return widget.palette().color(QPalette::WindowText);
  };
  EXPECT_EQ(colour(0x563412), QColor(0x12, 0x34, 0x56));
  EXPECT_EQ(colour(1), QColor(1, 0, 0)) << "a chosen black";
  const ui::Theme theme(ui::Theme::Kind::Light);
  EXPECT_EQ(colour(core::kGreen), theme[ui::Token::Good]);
  EXPECT_EQ(colour(0x563412), QColor(0x12, 0x34, 0x56));
  EXPECT_EQ(colour(core::kThemeColour), theme[ui::Token::Text]);
}

TEST_F(BindTest, ALabelIsInTheThemesColourOfWhatItsColourMeans) {
  const ui::Theme theme(ui::Theme::Kind::Light);
  core::Label model;
  QLabel widget;
  ui::BindLabel(&widget, model, frames);
  const auto colour = [&] {
    Frame();
    widget.ensurePolished();
    return widget.palette().color(QPalette::WindowText);
  };
  EXPECT_EQ(colour(), theme[ui::Token::Text]);
  model.ForeColour.Set(core::kRed);
  EXPECT_EQ(colour(), theme[ui::Token::Bad]);
  model.ForeColour.Set(core::kGreen);
  EXPECT_EQ(colour(), theme[ui::Token::Good]);
  model.ForeColour.Set(core::kBlue);
  EXPECT_EQ(colour(), theme[ui::Token::Accent]);
  model.ForeColour.Set(core::kThemeColour);
  EXPECT_EQ(colour(), theme[ui::Token::Text]);
}

TEST_F(BindTest, ATickOfItsOwnWordsLeavesTheCaptionToOthers) {
  core::Check model;
  model.Caption.Set("caption");
  QCheckBox widget("words");
  ui::BindTick(&widget, model, frames);
  EXPECT_EQ(widget.text(), "words");
  widget.click();
  EXPECT_TRUE(model.Value.Get());
  model.Value.Set(false);
  Frame();
  EXPECT_FALSE(widget.isChecked());
}

TEST_F(BindTest, AThousandChangesAreOneRepaint) {
  QObject owner;
  core::Property<int> property;
  std::vector<int> shown;
  ui::BindProperty<int>(&owner, property, frames,
                        [&](const int& value) { shown.push_back(value); });
  Frame();
  shown.clear();
  for (int value = 1; value <= 1000; ++value) property.Set(value);
  EXPECT_TRUE(shown.empty());
  Frame();
  EXPECT_EQ(shown, std::vector{1000});
  world.Run(1s);
  EXPECT_EQ(shown.size(), 1U) << "what does not change is not repainted";
}

TEST_F(BindTest, ALabelShowsMarkupAsItIs) {
  core::Label model;
  QLabel widget;
  model.Caption.Set("<b>x</b>");
  ui::BindLabel(&widget, model, frames);
  EXPECT_EQ(widget.textFormat(), Qt::PlainText);
  EXPECT_EQ(widget.text(), "<b>x</b>");
}

TEST_F(BindTest, ALabelWithANameSaysItsTextBehindIt) {
  core::Label model;
  QLabel widget;
  widget.setAccessibleName("Node");
  ui::BindLabel(&widget, model, frames);
  EXPECT_EQ(widget.accessibleName(), "Node");
  model.Caption.Set("N0DE-1");
  Frame();
  EXPECT_EQ(widget.accessibleName(), "Node: N0DE-1");
}

TEST_F(BindTest, AToolTipIsShownAsItStandsMarkupOrNot) {
  core::Label model;
  QLabel widget;
  ui::BindLabel(&widget, model, frames);
  model.ToolTip.Set("Ann & Bob");
  Frame();
  EXPECT_EQ(widget.toolTip(), "Ann & Bob");
  model.ToolTip.Set("<b>x</b>");
  Frame();
  EXPECT_TRUE(Qt::mightBeRichText(widget.toolTip()));
  EXPECT_TRUE(widget.toolTip().contains("&lt;b&gt;x&lt;/b&gt;"));
}

TEST_F(BindTest, AnAmpersandInACaptionIsNoMnemonic) {
  core::Button buttonModel;
  core::Check checkModel;
  core::Label labelModel;
  QPushButton button;
  QCheckBox check;
  QLabel label;
  ui::BindButton(&button, buttonModel, frames);
  ui::BindCheck(&check, checkModel, frames);
  ui::BindLabel(&label, labelModel, frames);
  for (core::Control* each :
       {static_cast<core::Control*>(&buttonModel), static_cast<core::Control*>(&checkModel),
        static_cast<core::Control*>(&labelModel)})
    each->Caption.Set("Ann &Bob");
  Frame();
  EXPECT_TRUE(button.shortcut().isEmpty());
  EXPECT_TRUE(check.shortcut().isEmpty());
  for (QWidget* each : {static_cast<QWidget*>(&button), static_cast<QWidget*>(&check),
                        static_cast<QWidget*>(&label)})
    EXPECT_EQ(QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name), "Ann &Bob");
  QPushButton plain("Ann &&Bob");
  plain.resize(button.size());
  EXPECT_EQ(button.grab().toImage(), plain.grab().toImage());
}

TEST_F(BindTest, ALabelOfAFieldShowsAnAmpersandToo) {
  core::Label model;
  QLabel label;
  QLineEdit field;
  label.setBuddy(&field);
  ui::BindLabel(&label, model, frames);
  model.Caption.Set("Ann &Bob");
  Frame();
  EXPECT_EQ(label.text(), "Ann &&Bob");
}

TEST_F(BindTest, AWidgetIsEnabledAndVisibleAsItsModelSays) {
  core::Button model;
  QPushButton widget;
  ui::BindButton(&widget, model, frames);
  model.Enabled.Set(false);
  model.Visible.Set(false);
  Frame();
  EXPECT_FALSE(widget.isEnabled());
  EXPECT_FALSE(widget.isVisible());
}

TEST_F(BindTest, OnlyTheUsersActPressesAButton) {
  core::Button model;
  int clicks = 0;
  const auto watching = model.Click.Add([&clicks] { ++clicks; });
  QPushButton widget;
  ui::BindButton(&widget, model, frames);
  model.Caption.Set("Press me");
  model.Enabled.Set(false);
  model.Enabled.Set(true);
  Frame();
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST_F(BindTest, APressBehindTheBackOfADisabledModelDoesNothing) {
  core::Button model;
  int clicks = 0;
  const auto watching = model.Click.Add([&clicks] { ++clicks; });
  QPushButton widget;
  ui::BindButton(&widget, model, frames);
  model.Enabled.Set(false);
  QTest::mouseClick(&widget, Qt::LeftButton);
  EXPECT_EQ(clicks, 0) << "the widget does not know yet";
}

TEST_F(BindTest, OnlyTheUsersTypingIsAChange) {
  core::TextBox model;
  int changes = 0;
  const auto watching = model.Change.Add([&changes] { ++changes; });
  QLineEdit widget;
  ui::BindTextBox(&widget, model, frames);
  model.Text.Set("by a rule");
  Frame();
  EXPECT_EQ(widget.text(), "by a rule");
  EXPECT_EQ(changes, 0);
  QTest::keyClicks(&widget, "!");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.Text.Get(), "by a rule!");
}

TEST_F(BindTest, ATextThatAScreenReaderSetsIsTypingButNotWhatTheFieldMakesOfTheRules) {
  core::TextBox model;
  int changes = 0;
  const auto watching = model.Change.Add([&changes] { ++changes; });
  QLineEdit widget;
  widget.setMaxLength(3);
  ui::BindTextBox(&widget, model, frames);
  widget.setText("all");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.Text.Get(), "all");
  model.Text.Set("longer");
  EXPECT_EQ(widget.text(), "lon");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(model.Text.Get(), "longer");
}

TEST_F(BindTest, ATickIsOneActHoweverTheUserTurnsIt) {
  core::Check model;
  int clicks = 0;
  const auto watching = model.Click.Add([&clicks] { ++clicks; });
  QCheckBox widget;
  ui::BindCheck(&widget, model, frames);
  widget.click();
  EXPECT_EQ(clicks, 1);
  widget.toggle();
  EXPECT_EQ(clicks, 2);
  model.Value.Set(true);
  Frame();
  EXPECT_TRUE(widget.isChecked());
  EXPECT_EQ(clicks, 2);
}

TEST_F(BindTest, AKeyGoesIntoTheTextThatTheRulesHaveLeft) {
  core::TextBox model;
  QLineEdit widget;
  ui::BindTextBox(&widget, model, frames);
  QTest::keyClicks(&widget, "old");
  model.Text.Set("");
  QTest::keyClicks(&widget, "n");
  EXPECT_EQ(model.Text.Get(), "n");
}

TEST_F(BindTest, TypingInTheMiddleKeepsTheCursorThere) {
  core::TextBox model;
  QLineEdit widget;
  ui::BindTextBox(&widget, model, frames);
  QTest::keyClicks(&widget, "ac");
  widget.setCursorPosition(1);
  QTest::keyClicks(&widget, "b");
  Frame();
  EXPECT_EQ(widget.text(), "abc");
  EXPECT_EQ(widget.cursorPosition(), 2);
}

TEST_F(BindTest, TheTieEndsWithTheWidget) {
  core::Label label;
  core::Button button;
  core::TextBox box;
  auto one = std::make_unique<QLabel>();
  auto two = std::make_unique<QPushButton>();
  auto three = std::make_unique<QLineEdit>();
  ui::BindLabel(one.get(), label, frames);
  ui::BindButton(two.get(), button, frames);
  ui::BindTextBox(three.get(), box, frames);
  label.Caption.Set("asked for, but nobody is there any more");
  one.reset();
  two.reset();
  three.reset();
  button.Caption.Set("x");
  box.Text.Set("x");
  label.Visible.Set(false);
  Frame();
}

TEST_F(BindTest, NothingIsShownToAnOwnerThatHasGone) {
  auto owner = std::make_unique<QObject>();
  core::Property<int> property;
  int shown = 0;
  ui::BindProperty<int>(owner.get(), property, frames, [&shown](const int&) { ++shown; });
  Frame();
  shown = 0;
  property.Set(1);
  owner.reset();
  property.Set(2);
  Frame();
  EXPECT_EQ(shown, 0);
}

}  // namespace
}  // namespace gui
