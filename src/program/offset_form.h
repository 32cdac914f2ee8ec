#pragma once

#include <functional>
#include <string>

#include "core/controls.h"

namespace program {

// Asks how local time stands to GMT, where the configuration doesn't say.
class OffsetForm {
 public:
  // `chosen` gets the setting: "Ok" for the system's zone, or hours.
  explicit OffsetForm(std::function<void(const std::string& gmtOffset)> chosen);

  core::Property<bool> Open{false};
  core::Check chkSystemZone;
  core::TextBox txtHours;
  core::Label lblProblem;
  core::Button cmdOk;
  core::Button cmdCancel;  // leaves the question for the next start

  void Show();

 private:
  void PressOk();

  std::function<void(const std::string&)> chosen_;
  platform::Registration ok_;
  platform::Registration cancel_;
};

// Hours to add to local time to get GMT, between -24 and 24, with a fraction or without.
bool IsGmtOffset(std::string_view text);

}  // namespace program
