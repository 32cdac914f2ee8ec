#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <memory>
#include <string>
#include <vector>

#include "gui/by_name.h"
#include "gui/scripted_node.h"
#include "platform/sim/world.h"
#include "program/program.h"
#include "ui/frames.h"
#include "ui/main_window.h"
#include "ui/theme.h"

namespace gui {

using namespace std::chrono_literals;
using ::testing::Contains;
using ::testing::ElementsAre;

// The real window of the real program, on the simulated world.
class Desk : public ::testing::Test {
 protected:
  // Starts the program, and shows its window. `more` are lines of its configuration behind the
  // usual ones.
  void Open(const std::vector<std::string>& more = {});
  // The same in a folder that is not there yet.
  void OpenAnew();
  // Presses Connect, and lets the node ask for the call and greet.
  void LogIn();
  // Lets time pass, and the window do what it has to do then.
  void Run(platform::Milliseconds time);
  // Types into whatever has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

  QPushButton& Button(const char* name) { return *Named<QPushButton>(*window, name); }
  QPlainTextEdit& Raw() {
    return *Named<QPlainTextEdit>(*window, "Raw view: all text from and to the node");
  }
  QLineEdit& CommandLine() { return *Named<QLineEdit>(*window, "Command to the node"); }
  QTabBar& Tabs() { return *Named<QTabBar>(*window, "Views"); }

  platform::sim::World world;
  ScriptedNode node{world};
  bool hasQuit = false;
  std::vector<std::string> pagesOpened;  // of the manual
  ui::Frames frames{world.scheduler};
  const ui::Theme theme{ui::Theme::Kind::Light};  // what the window begins with
  ui::LiveTheme liveTheme{theme};
  std::unique_ptr<program::Program> program;
  std::unique_ptr<ui::MainWindow> window;
};

}  // namespace gui
