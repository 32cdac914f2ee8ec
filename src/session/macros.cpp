#include "session/macros.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "core/text.h"

namespace session {
namespace {

constexpr std::string_view kWord = "Macro";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kSeparators = "=:).";

bool Holds(std::string_view set, char byte) { return set.find(byte) != std::string_view::npos; }

struct Macro {
  std::size_t index;
  std::string_view text;
};

// Nodes write "Macro 3 = sh/dx 10", "Macro 3 sh/dx 10", "3: sh/dx 10" and the like.
std::optional<Macro> ParseMacro(std::string_view line) {
  const bool named = line.starts_with(kWord);
  line = core::LTrim(named ? line.substr(kWord.size()) : line);
  if (line.empty() || !Holds(kDigits, line.front())) return std::nullopt;
  const std::string_view rest = core::LTrim(line.substr(1));
  const bool marked = !rest.empty() && Holds(kSeparators, rest.front());
  if (!marked && (!named || rest.size() + 1 == line.size())) return std::nullopt;
  return Macro{kDigits.find(line.front()), core::Trim(rest.substr(marked ? 1 : 0))};
}

}  // namespace

Macros::Macros(const SessionState& state, Needs needs) : state_(state), needs_(std::move(needs)) {
  fraSendMacro.Visible.Set(false);
  fraMacros.Visible.Set(false);
  cmdMacro[0].Caption.Set("Get Macros");
  acts_.push_back(cmdMacro[0].Click.Add([this] { GetMacros(); }));
  for (std::size_t i = 1; i < kCount; ++i) {
    cmdMacro[i].Caption.Set("Macro " + std::to_string(i));
    acts_.push_back(cmdMacro[i].Click.Add([this, i] { SendField(i); }));
  }
  for (std::size_t i = 0; i < kCount; ++i) {
    acts_.push_back(txtMacro[i].Change.Add([this] { fraMacros.Caption.Set("Local Macros"); }));
    acts_.push_back(txtMacro[i].Return.Add([this, i] { SendField(i); }));
  }
}

void Macros::GetMacros() {
  fraSendMacro.Visible.Set(true);
  if (asked_) return;
  asked_ = MacrosLoaded || needs_.send("sh/macro");
  if (state_.IsSpider()) needs_.openChat();
}

void Macros::SendField(std::size_t index) { needs_.send(txtMacro[index].Text.Get()); }

bool Macros::UserMacro(std::string_view line) {
  const bool begins = line.starts_with(kWord);
  if (!begins && !reading_) return false;
  if (state_.RcvdPrompt(line)) {
    reading_ = false;
    return false;
  }
  if (begins && !reading_) Begin();
  reading_ = Take(line) || begins;
  if (reading_) needs_.suppressForward();
  return reading_;
}

void Macros::Begin() {
  MacrosLoaded = true;
  fraMacros.Caption.Set("Cluster Macros @ " + state_.ConnectedNodeCall);
  fraMacros.Visible.Set(true);
}

bool Macros::Take(std::string_view line) {
  const auto macro = ParseMacro(line);
  if (!macro) return false;
  txtMacro[macro->index].Text.Set(std::string(macro->text));
  return true;
}

void Macros::Disconnected() {
  reading_ = false;
  asked_ = false;
  MacrosLoaded = false;
  fraSendMacro.Visible.Set(false);
  fraMacros.Visible.Set(false);
  cmdMacro[0].Caption.Set("Get Macros");
}

}  // namespace session
