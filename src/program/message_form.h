#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/controls.h"

namespace program {

// frmMsg: tells something and waits for nothing. It stays until the user or a rule closes it.
class MessageForm {
 public:
  MessageForm();

  core::Property<bool> Open{false};
  core::Label lblHeading;
  core::Property<std::vector<std::string>> Lines;
  core::Button cmdClose;

  // The lines of the text end in CR LF or LF. What was on show before is gone.
  void Show(std::string_view heading, std::string_view text);
  void Close() { Open.Set(false); }

 private:
  platform::Registration closing_;
};

}  // namespace program
