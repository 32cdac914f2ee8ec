#include "program/save_condition.h"

#include <utility>

namespace program {
namespace {

using Fault = platform::Files::Fault;

constexpr auto kKey = "save";
constexpr auto kLogKey = "log";

std::string Reason(Fault fault) {
  if (fault == Fault::Full) return "the disk is full";
  if (fault == Fault::Denied) return "no permission to write there";
  return "the disk does not take them";
}

}  // namespace

void ShowSaved(Conditions& conditions, Fault fault, std::function<void()> save) {
  if (fault == Fault::None) {
    conditions.Clear(kKey);
    return;
  }
  conditions.Raise({.key = kKey,
                    .text = "Settings are not saved: " + Reason(fault) + ".",
                    .button = "Save now",
                    .help = std::move(save)});
}

void ShowLogged(Conditions& conditions, Fault fault) {
  if (fault == Fault::None)
    conditions.Clear(kLogKey);
  else
    conditions.Raise(
        {.key = kLogKey, .text = "Spots are not logged: " + Reason(fault) + ".", .button = {}});
}

}  // namespace program
