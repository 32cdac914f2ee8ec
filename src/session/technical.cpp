#include "session/technical.h"

namespace session {

Technical::Technical() { lblTech[kEscapedErrors].ToolTip.Set("Escaped Errors Fixed"); }

void Technical::ShowEscapedErrors(int count) {
  lblTech[kEscapedErrors].Caption.Set("Escaped Errors = " + std::to_string(count));
}

}  // namespace session
