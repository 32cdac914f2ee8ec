#include "program/conditions.h"

#include <algorithm>

namespace program {

Conditions::Conditions() : helping_(cmdHelp.Click.Add([this] { Help(); })) { Show(); }

void Conditions::Raise(Condition condition) {
  const auto held = Find(condition.key);
  if (held == conditions_.end())
    conditions_.push_back(std::move(condition));
  else
    *held = std::move(condition);
  Show();
}

void Conditions::Clear(std::string_view key) {
  const auto held = Find(key);
  if (held == conditions_.end()) return;
  conditions_.erase(held);
  Show();
}

std::vector<Condition>::iterator Conditions::Find(std::string_view key) {
  return std::find_if(conditions_.begin(), conditions_.end(),
                      [key](const Condition& each) { return each.key == key; });
}

void Conditions::Show() {
  const Condition none;
  const Condition& newest = conditions_.empty() ? none : conditions_.back();
  lblText.Caption.Set(newest.text);
  lblText.Visible.Set(!conditions_.empty());
  cmdHelp.Caption.Set(newest.button);
  cmdHelp.Visible.Set(!newest.button.empty());
  ShowRest();
}

void Conditions::ShowRest() {
  const std::size_t rest = conditions_.empty() ? 0 : conditions_.size() - 1;
  std::string texts;
  for (std::size_t i = rest; i > 0; --i)
    texts += (texts.empty() ? "" : "\n") + conditions_[i - 1].text;
  lblMore.Caption.Set(rest == 0 ? "" : "+" + std::to_string(rest));
  lblMore.ToolTip.Set(texts);
  lblMore.Visible.Set(rest > 0);
}

void Conditions::Help() {
  if (conditions_.empty()) return;
  const auto help = conditions_.back().help;  // it may clear the condition
  if (help) help();
}

}  // namespace program
