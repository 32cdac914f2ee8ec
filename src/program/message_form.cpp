#include "program/message_form.h"

#include "core/quoted.h"

namespace program {

MessageForm::MessageForm() : closing_(cmdClose.Click.Add([this] { Close(); })) {
  cmdClose.Caption.Set("Close");
}

void MessageForm::Show(std::string_view heading, std::string_view text) {
  lblHeading.Caption.Set(std::string(heading));
  std::vector<std::string> lines;
  for (const std::string_view line : core::SplitLines(text)) lines.emplace_back(line);
  Lines.Set(std::move(lines));
  Open.Set(true);
}

}  // namespace program
