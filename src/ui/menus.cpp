#include "ui/menus.h"

#include <QKeySequence>
#include <QMenu>
#include <algorithm>
#include <array>
#include <utility>

namespace ui {
namespace {

struct Title {
  Menu menu;
  const char* text;
};

constexpr std::array kTitles = {
    Title{Menu::Connection, QT_TR_NOOP("&Connection")},
    Title{Menu::Configuration, QT_TR_NOOP("Con&figuration")},
    Title{Menu::View, QT_TR_NOOP("&View")},
    Title{Menu::Help, QT_TR_NOOP("&Help")},
};

// One key does both of them.
const Command& CommandWithKeyOf(const Command& command) {
  if (command.act != Act::Connect && command.act != Act::Disconnect) return command;
  const auto all = Commands();
  return *std::find_if(all.begin(), all.end(),
                       [](const Command& each) { return each.act == Act::ConnectOrDisconnect; });
}

// The menu draws what stands behind a tab as the key of its entry. The shortcuts themselves belong
// to the window.
QString WithKey(const QString& text, const Command& command) {
  const Command& keyed = CommandWithKeyOf(command);
  if (!keyed.HasKey()) return text;
  const auto keys = QKeySequence::listFromString(QString::fromLatin1(keyed.keys));
  return text + QLatin1Char('\t') + keys.front().toString(QKeySequence::NativeText);
}

}  // namespace

Menus::Menus(Needs needs, QWidget* parent) : QMenuBar(parent), needs_(std::move(needs)) {
  setAccessibleName(tr("Menus"));
  for (const Title& title : kTitles) Fill(addMenu(tr(title.text)), title.menu);
}

void Menus::Fill(QMenu* menu, Menu which) {
  menu->setToolTipsVisible(true);
  for (const Command& command : Commands())
    if (command.menu == which) AddEntry(menu, command);
  connect(menu, &QMenu::aboutToShow, this, [this, which] { Refresh(which); });
  Refresh(which);
}

void Menus::AddEntry(QMenu* menu, const Command& command) {
  QString text = tr(command.entry);
  if (text.startsWith(QLatin1Char('-'))) {
    menu->addSeparator();
    text.remove(0, 1);
  }
  QAction* action = menu->addAction(WithKey(text, command));
  action->setStatusTip(tr(command.says));
  connect(action, &QAction::triggered, this, [this, &command] { needs_.run(command); });
  entries_.push_back({&command, action});
}

void Menus::Refresh(Menu which) {
  for (const Entry& entry : entries_) {
    if (entry.command->menu != which) continue;
    const State state = needs_.state(*entry.command);
    entry.action->setEnabled(state.enabled);
    entry.action->setCheckable(state.ticked.has_value());
    entry.action->setChecked(state.ticked.value_or(false));
    entry.action->setToolTip(state.enabled ? tr(entry.command->says) : state.why);
  }
}

}  // namespace ui
