#include "spots/spot_errors.h"

#include <string>

#include "spots/spot_line.h"

namespace spots {
namespace {

void Show(core::Label& label, const char* text, int count) {
  label.Caption.Set(text + std::to_string(count));
  label.Visible.Set(true);
}

}  // namespace

void SpotErrors::CountAr17() { Show(lblAr17Errors, "AR17 Errors = ", ++ar17_); }

void SpotErrors::CountZv11(std::string_view line) {
  lblZv11Errors.ToolTip.Set(std::string(line.substr(0, kLongestLine)));
  Show(lblZv11Errors, "ZV11 Errors = ", ++zv11_);
}

void SpotErrors::Forget() {
  ar17_ = zv11_ = 0;
  lblAr17Errors.Visible.Set(false);
  lblZv11Errors.Visible.Set(false);
}

}  // namespace spots
