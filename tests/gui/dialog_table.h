#pragma once

#include <span>
#include <vector>

#include "program/program.h"

namespace gui {

// A dialog or a dropped panel of the window, and what it promises to the keyboard.
struct DialogRow {
  const char* title;  // of its frame; a panel's name
  // The menu and its entry that open it, or the button of the window; else `open` does.
  const char* menu = "";
  const char* entry = "";
  const char* button = "";
  void (*open)(program::Program& program) = nullptr;
  const char* page = "";     // of the manual, by F1; with the heading behind "#"
  const char* primary = "";  // the button that Return presses
  const char* closes = "Close";
  // Controls without an Alt key or a label of their own: what their names begin with. Their letters
  // are all taken, or they stand beside one that has it; keys of another kind do what they do.
  std::vector<const char*> together = {};
};

// All of them. A test fails for one of the window that is not in it.
std::span<const DialogRow> Dialogs();

}  // namespace gui
