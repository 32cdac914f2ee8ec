#pragma once

#include <QMainWindow>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>

#include "program/program.h"
#include "ui/command_row.h"
#include "ui/frames.h"
#include "ui/link_bar.h"
#include "ui/text_page_view.h"
#include "ui/theme.h"

namespace ui {

// The one window, form1.
class MainWindow : public QMainWindow {
 public:
  // All three outlive the window.
  MainWindow(program::Program& program, Frames& frames, const Theme& theme);

 protected:
  // Never closes by itself: the program asks, says goodbye to the node, and ends.
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddTabs(Frames& frames);
  QWidget* MakePage(int tab, Frames& frames);  // nullptr: the view isn't there yet
  void Lay();
  void AddKeys();
  void GoRound();
  void Place(const program::FormPlace& place);
  void StorePlace();

  program::Program& program_;
  LinkBar* linkBar_;
  QTabBar* tabs_;
  QStackedWidget* pages_;
  QSplitter* splitter_;
  TextPageView* loginMessage_;
  TextPageView* raw_;
  CommandRow* commandRow_;
  program::FormPlace placed_{.left = -1};  // as last applied or stored
  platform::Registration placing_;
};

}  // namespace ui
