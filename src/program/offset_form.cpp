#include "program/offset_form.h"

#include <charconv>
#include <cmath>

#include "core/text.h"

namespace program {

OffsetForm::OffsetForm(std::function<void(const std::string&)> chosen)
    : chosen_(std::move(chosen)),
      ok_(cmdOk.Click.Add([this] { PressOk(); })),
      cancel_(cmdCancel.Click.Add([this] { Open.Set(false); })) {
  cmdOk.Caption.Set("OK");
  cmdCancel.Caption.Set("Cancel");
  chkSystemZone.Caption.Set("Use the computer's time zone");
}

void OffsetForm::Show() {
  chkSystemZone.Value.Set(true);
  txtHours.Text.Set({});
  lblProblem.Caption.Set({});
  Open.Set(true);
}

void OffsetForm::PressOk() {
  const std::string hours(core::Trim(txtHours.Text.Get()));
  if (!chkSystemZone.Value.Get() && !IsGmtOffset(hours)) {
    lblProblem.Caption.Set("Enter hours, for example 5 or -5.5.");
    return;
  }
  Open.Set(false);
  chosen_(chkSystemZone.Value.Get() ? "Ok" : hours);
}

bool IsGmtOffset(std::string_view text) {
  if (core::StartsWith(text, "+")) text.remove_prefix(1);
  double hours = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), hours);
  return fault == std::errc() && end == text.data() + text.size() && std::abs(hours) <= 24;
}

}  // namespace program
