#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"

namespace program {

// Something that is not as it should be, as long as it is so.
struct Condition {
  std::string key;     // which one; of no account to the user
  std::string text;    // what is wrong
  std::string button;  // the caption of what helps; empty: nothing does
  std::function<void()> help = {};
};

// The conditions that hold, the newest on top. It alone is on show, and how many stand behind it.
class Conditions {
 public:
  Conditions();

  core::Label lblText;   // the newest; invisible while there is none
  core::Label lblMore;   // "+2"; its tool tip tells them
  core::Button cmdHelp;  // that of the newest

  // One that holds already is told anew where it stands.
  void Raise(Condition condition);
  void Clear(std::string_view key);

 private:
  std::vector<Condition>::iterator Find(std::string_view key);
  void Show();
  void ShowRest();
  void Help();

  std::vector<Condition> conditions_;  // the newest last
  platform::Registration helping_;
};

}  // namespace program
