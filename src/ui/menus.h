#pragma once

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <optional>
#include <vector>

#include "ui/commands.h"

namespace ui {

// The menus over the table of commands. Each entry shows its key, and stands as its command does
// when the menu opens.
class Menus : public QMenuBar {
 public:
  struct State {
    bool enabled = true;
    std::optional<bool> ticked;  // none: it is no choice
    QString why;                 // it can't be used now
  };
  struct Needs {
    std::function<State(const Command&)> state;
    std::function<void(const Command&)> run;
  };

  Menus(Needs needs, QWidget* parent);

  // Has the entries stand as their commands do now, for who looks at them without opening the menu.
  void Refresh(Menu which);

 private:
  void Fill(QMenu* menu, Menu which);
  void AddEntry(QMenu* menu, const Command& command);

  struct Entry {
    const Command* command;
    QAction* action;
  };

  Needs needs_;
  std::vector<Entry> entries_;
};

}  // namespace ui
