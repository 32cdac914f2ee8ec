#include "session/technical.h"

namespace session {
namespace {

constexpr std::size_t kEscapedErrors = 10;

}  // namespace

Technical::Technical() { lblTech[kEscapedErrors].ToolTip.Set("Escaped Errors Fixed"); }

void Technical::ShowEscapedErrors(int count) {
  lblTech[kEscapedErrors].Caption.Set("Escaped Errors = " + std::to_string(count));
}

}  // namespace session
