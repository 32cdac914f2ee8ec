#pragma once

#include <span>

namespace ui {

// The menus, in their order. What is in none is reached by its key alone.
enum class Menu { Connection, Configuration, View, Help, None };

// What a menu entry or a key of the window does.
enum class Act {
  ConnectOrDisconnect,
  Connect,
  Disconnect,
  Nodes,
  RadioClus,
  TelnetClus,
  LinkSettings,
  TncScript,
  Quit,
  UserInfo,
  Columns,
  SpotLog,
  Rejects,
  Corrections,
  CorrectErrors,
  Colours,
  ChooseTheme,
  ChooseTab,
  ChooseBand,
  RawView,
  CommandLine,
  ReturnToTable,
  GoRound,
  Find,
  LargerText,
  SmallerText,
  Manual,
  ListKeys,
  About,
};

// One row of the table of commands, which makes the menus and the shortcuts and is what the list of
// keys shows.
struct Command {
  Menu menu;
  const char* keys;  // several are parted by "; "; none for what stands in a menu alone
  Act act;
  int number;         // of the tab, the band or the theme
  const char* entry;  // in the menu, with its mnemonic; a separator stands before "-"
  const char* says;   // what it does

  bool HasKey() const { return *keys != '\0'; }
};

std::span<const Command> Commands();

}  // namespace ui
