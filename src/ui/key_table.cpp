#include "ui/key_table.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <array>
#include <span>

#include "ui/commands.h"

namespace ui {
namespace {

// A key that no command has: the control with the focus knows it by itself.
struct Key {
  const char* keys;  // several are parted by "; "
  const char* says;
};

// The commands with keys. Each stands at one place.
constexpr std::array kCommandsAnywhere = {
    Act::Manual,      Act::ListKeys,      Act::ConnectOrDisconnect,
    Act::CommandLine, Act::ReturnToTable, Act::GoRound,
    Act::Find,        Act::RawView,       Act::LargerText,
    Act::SmallerText};
constexpr std::array kCommandsAtTheEnd = {Act::Quit};
constexpr std::array kCommandsOfViews = {Act::ChooseTab};
constexpr std::array kCommandsOfBands = {Act::ChooseBand};

constexpr std::array kAnywhere = {
    Key{QT_TR_NOOP("Tab; Shift+Tab"), QT_TR_NOOP("The next control, the one before")},
    Key{QT_TR_NOOP("Space"), QT_TR_NOOP("Press the button, turn the tick")},
    Key{QT_TR_NOOP("Alt"), QT_TR_NOOP("The menus")},
    Key{QT_TR_NOOP("Alt+letter"), QT_TR_NOOP("What has that letter underlined")}};
constexpr std::array kCommandLine = {
    Key{QT_TR_NOOP("Return"), QT_TR_NOOP("Send the command to the node")},
    Key{QT_TR_NOOP("Up; Down"), QT_TR_NOOP("An older command, a newer one")}};
constexpr std::array kSpots = {
    Key{QT_TR_NOOP("Up; Down"), QT_TR_NOOP("The row above, the row below")},
    Key{QT_TR_NOOP("PgUp; PgDown"), QT_TR_NOOP("As many rows up or down as are in sight")},
    Key{QT_TR_NOOP("Home; End"), QT_TR_NOOP("The first row, the last row")},
    Key{QT_TR_NOOP("Shift+Up; Shift+Down"), QT_TR_NOOP("Choose more rows; so with the keys above")},
    Key{QT_TR_NOOP("Left; Right"), QT_TR_NOOP("Rows that are too wide: to the left, to the right")},
    Key{QT_TR_NOOP("Return; Alt+Return"), QT_TR_NOOP("The row's call goes into the clipboard")},
    Key{QT_TR_NOOP("Ctrl+Return"),
        QT_TR_NOOP("The same, and the node is asked for sunrise and sunset there")},
    Key{QT_TR_NOOP("Ctrl+C"), QT_TR_NOOP("Copy the rows that are chosen")}};
constexpr std::array kHeads = {
    Key{QT_TR_NOOP("Left; Right"), QT_TR_NOOP("The head before, the next head")},
    Key{QT_TR_NOOP("Return; Space"), QT_TR_NOOP("Sort by it")},
    Key{QT_TR_NOOP("Shift+Return"), QT_TR_NOOP("Sort by it from the end")},
    Key{QT_TR_NOOP("Ctrl+Return"), QT_TR_NOOP("Sort by it, nothing left out")},
    Key{QT_TR_NOOP("Down"), QT_TR_NOOP("Into the rows")}};
constexpr std::array kBands = {
    Key{QT_TR_NOOP("Up; Down"), QT_TR_NOOP("In the list of bands: the band above, the one below")}};
constexpr std::array kTexts = {
    Key{QT_TR_NOOP("PgUp; PgDown"), QT_TR_NOOP("Scroll up, scroll down")},
    Key{QT_TR_NOOP("Ctrl+Home; Ctrl+End"), QT_TR_NOOP("The beginning, the end of the text")},
    Key{QT_TR_NOOP("Ctrl+A"), QT_TR_NOOP("Choose the whole text")},
    Key{QT_TR_NOOP("Ctrl+C"), QT_TR_NOOP("Copy the text that is chosen")},
    Key{QT_TR_NOOP("Tab; Return"), QT_TR_NOOP("Login message: the next link, open it")}};
constexpr std::array kFinding = {Key{QT_TR_NOOP("Return"), QT_TR_NOOP("Find the next one")},
                                 Key{QT_TR_NOOP("Shift+Return"), QT_TR_NOOP("Find the one before")},
                                 Key{QT_TR_NOOP("Esc"), QT_TR_NOOP("Back to what was searched")}};
constexpr std::array kDialogs = {
    Key{QT_TR_NOOP("Return"), QT_TR_NOOP("Press the button that stands out")},
    Key{QT_TR_NOOP("Esc"), QT_TR_NOOP("Close")},
    Key{QT_TR_NOOP("F1"), QT_TR_NOOP("The manual at the page for it")},
    Key{QT_TR_NOOP("Del"), QT_TR_NOOP("In a list of rejects: take the entry off it")},
    Key{QT_TR_NOOP("Return; Down"),
        QT_TR_NOOP("In the search for nodes: the first that fits, into the list")},
    Key{QT_TR_NOOP("Return"), QT_TR_NOOP("In the list of colours: choose another")}};

struct Place {
  const char* heading;
  std::span<const Act> commands;
  std::span<const Key> keys;
  std::span<const Act> last = {};
};

constexpr std::array kPlaces = {
    Place{QT_TR_NOOP("Anywhere"), kCommandsAnywhere, kAnywhere, kCommandsAtTheEnd},
    Place{QT_TR_NOOP("Command line"), {}, kCommandLine},
    Place{QT_TR_NOOP("Views"), kCommandsOfViews, {}},
    Place{QT_TR_NOOP("Bands of the spots"), kCommandsOfBands, kBands},
    Place{QT_TR_NOOP("Table of the spots"), {}, kSpots},
    Place{QT_TR_NOOP("Heads of the table"), {}, kHeads},
    Place{QT_TR_NOOP("Raw view and login message"), {}, kTexts},
    Place{QT_TR_NOOP("Finding"), {}, kFinding},
    Place{QT_TR_NOOP("Dialogs"), {}, kDialogs},
};

QString Words(const char* text) { return QCoreApplication::translate("ui", text); }

QStringList Spelled(const Command& command) {
  QStringList names;
  for (const QKeySequence& each : QKeySequence::listFromString(QString::fromLatin1(command.keys)))
    names << each.toString(QKeySequence::NativeText);
  return names;
}

void AddCommands(KeyPlace& to, std::span<const Act> acts) {
  for (const Act act : acts)
    for (const Command& command : Commands())
      if (command.act == act && command.HasKey())
        to.rows.push_back({Spelled(command), Words(command.says)});
}

KeyPlace Filled(const Place& place) {
  KeyPlace filled{.heading = Words(place.heading), .rows = {}};
  AddCommands(filled, place.commands);
  for (const Key& key : place.keys)
    filled.rows.push_back({Words(key.keys).split(QStringLiteral("; ")), Words(key.says)});
  AddCommands(filled, place.last);
  return filled;
}

}  // namespace

std::vector<KeyPlace> KeyTable() {
  std::vector<KeyPlace> places;
  places.reserve(kPlaces.size());
  for (const Place& place : kPlaces) places.push_back(Filled(place));
  return places;
}

}  // namespace ui
