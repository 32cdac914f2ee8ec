#pragma once

#include <string>
#include <string_view>

#include "spots/table_row.h"

namespace spots {

inline constexpr std::string_view kTableToolTip =
    "Click for callbook.  CTRL+Click for sun times.  ALT+Click to place call in clipboard.";

// How a row was clicked, and what the operator has chosen of clicks.
struct ClickKeys {
  bool ctrl = false;
  bool alt = false;
  bool toLoggers = false;  // clicks go to logging programs
  bool tuning = false;     // the pointer is the one that tunes the radio
};

// What is to be done for a click.
struct Click {
  enum class Act {
    None,
    CallBook,   // look `call` up
    Loggers,    // SendCallToLoggers(dxCall, spotter, hertz)
    Node,       // send `text` to the node; what comes back is for the sun view
    Clipboard,  // nothing besides what holds for each act
    Radio,      // send `text` to the radio's port
  };
  Act act = Act::None;
  std::string call{};    // goes into the clipboard, whatever the act; empty: the clipboard stays
  std::string dxCall{};  // one of the two is `call`
  std::string spotter{};
  std::string hertz{};  // of the row, 11 digits
  std::string text{};
};

// A click on a row, in a column of the table counted from 1. The calls are those of the spot,
// whole, wherever the row cuts them. Total.
Click ClickOn(const TableRow& row, int column, const ClickKeys& keys);

}  // namespace spots
