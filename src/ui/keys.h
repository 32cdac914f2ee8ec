#pragma once

#include <span>

namespace ui {

// What a key of the window does.
enum class Act {
  ChooseTab,
  ChooseBand,
  CommandLine,
  ReturnToTable,
  GoRound,
  Find,
  LargerText,
  SmallerText,
  ConnectOrDisconnect,
  ListKeys,
};

// One row of the table of keys, which makes the shortcuts and is what the list of keys shows.
struct Key {
  const char* keys;  // several are parted by "; "
  Act act;
  int number;        // of the tab or the band
  const char* says;  // what it does
};

std::span<const Key> Keys();

}  // namespace ui
