#include "program/offset_condition.h"

#include <utility>

namespace program {
namespace {

constexpr auto kOffsetKey = "offset";

}  // namespace

void ShowOffset(Conditions& conditions, std::string_view gmtOffset, std::function<void()> choose) {
  if (!gmtOffset.empty()) {
    conditions.Clear(kOffsetKey);
    return;
  }
  conditions.Raise({.key = kOffsetKey,
                    .text = "The offset from UTC is not set: local time is taken for UTC.",
                    .button = "Set offset…",
                    .help = std::move(choose)});
}

}  // namespace program
