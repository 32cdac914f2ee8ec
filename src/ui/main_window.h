#pragma once

#include <QMainWindow>
#include <QSplitter>
#include <QStackedWidget>
#include <string_view>

#include "program/program.h"
#include "ui/command_row.h"
#include "ui/commands.h"
#include "ui/dialog_place.h"
#include "ui/display_dialog.h"
#include "ui/dx_page.h"
#include "ui/find_bar.h"
#include "ui/frames.h"
#include "ui/key_list.h"
#include "ui/link_bar.h"
#include "ui/manual_window.h"
#include "ui/menus.h"
#include "ui/reject_dialog.h"
#include "ui/text_page_view.h"
#include "ui/theme.h"
#include "ui/view_tabs.h"

namespace ui {

// The one window, form1.
class MainWindow : public QMainWindow {
 public:
  // All three outlive the window.
  MainWindow(program::Program& program, Frames& frames, LiveTheme& theme);

  // At a page of docs/manual, by its name without the ending, or with "#" at one of its headings.
  void OpenManual(std::string_view page);

 protected:
  // Never closes by itself: the program asks, says goodbye to the node, and ends.
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void AddPages(Frames& frames, LiveTheme& theme);
  DxPage* MakeDxPage(Frames& frames, LiveTheme& theme);
  void AddDialogs(Frames& frames, LiveTheme& theme);
  // It comes up where the user left it.
  void Keep(QDialog* dialog, const PlaceKeys& keys);
  // F1 in the dialog opens the manual at that page.
  void AddHelp(QDialog* dialog, const char* page);
  void Do(const spots::Click& click);
  void Lay(Frames& frames, LiveTheme& theme);
  void AddMenus(Frames& frames);
  void AddKeys();
  void Do(const Command& command);
  Menus::State StateOf(const Command& command) const;
  void ShowPages();
  void ChooseTab(int tab);
  void ReturnToTable();
  void GoRound();
  void Find();
  void ListKeys();
  void TellAbout();
  program::TextSizes::View ViewAtHand() const;
  void Place(const program::FormPlace& place);
  void StorePlace();

  program::Program& program_;
  LinkBar* linkBar_;
  ViewTabs* tabs_;
  QStackedWidget* pages_;
  QSplitter* splitter_;
  DxPage* dx_;
  TextPageView* loginMessage_;
  TextPageView* raw_;
  FindBar* findInLogin_;
  FindBar* findInRaw_;
  CommandRow* commandRow_;
  DisplayDialog* columns_;
  RejectDialog* rejects_;
  ManualWindow* manual_ = nullptr;         // once it was asked for
  KeyList* keyList_ = nullptr;             // likewise
  program::FormPlace placed_{.left = -1};  // as last applied or stored
  platform::Registration placing_;
  platform::Registration following_;
  platform::Registration alone_;
};

}  // namespace ui
