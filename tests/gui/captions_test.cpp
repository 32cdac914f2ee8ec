#include <QAction>
#include <set>

#include "gui/opened_row.h"

// How the words of the window are written.
namespace gui {
namespace {

class CaptionsTest : public OpenedRow {
 protected:
  // All that the window and its dialogs say, as far as it is not the node's.
  std::set<QString> All() {
    std::set<QString> all;
    for (const QWidget* each : window->findChildren<QWidget*>()) {
      for (const char* property : {"text", "placeholderText", "toolTip", "accessibleName",
                                   "accessibleDescription", "windowTitle"})
        all.insert(each->property(property).toString());
    }
    for (const QAction* each : window->findChildren<QAction*>())
      for (const QString& text : {each->text(), each->toolTip(), each->statusTip()})
        all.insert(text);
    return all;
  }
  QString Caption(const char* button) { return Button(button).text().remove('&'); }
};

TEST_F(CaptionsTest, MoreToComeIsOneSignAndNotThreeDots) {
  Open();
  ForEach([](const DialogRow&, QWidget&) {});
  const std::set<QString> all = All();
  EXPECT_GT(all.size(), 200U);
  int signs = 0;
  for (const QString& each : all) {
    EXPECT_FALSE(each.contains("...")) << each.toStdString();
    signs += each.contains(QChar(0x2026)) ? 1 : 0;
  }
  EXPECT_GT(signs, 10);
}

TEST_F(CaptionsTest, ADialogIsAnnouncedByThatSignWhereverItIsOpened) {
  Open();
  for (const DialogRow& row : Dialogs()) {
    if (*row.entry == '\0' || std::string(row.menu) == "Help") continue;
    EXPECT_TRUE(Entry(row).text().contains(QChar(0x2026))) << row.entry;
  }
  for (const char* each : {"Nodes", "Columns of the spots", "Spot log", "Spots to reject",
                           "Corrections of spots", "User info"})
    EXPECT_TRUE(Caption(each).endsWith(QChar(0x2026))) << each;
}

TEST_F(CaptionsTest, AButtonThatDropsAPanelHasAnArrow) {
  Open();
  int panels = 0;
  for (const DialogRow& row : Dialogs()) {
    if (*row.button == '\0') continue;
    EXPECT_TRUE(Caption(row.button).endsWith(" ▾")) << row.button;
    ++panels;
  }
  EXPECT_EQ(panels, 2);
}

}  // namespace
}  // namespace gui
