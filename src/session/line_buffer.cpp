#include "session/line_buffer.h"

#include <algorithm>
#include <array>

#include "core/escapes.h"
#include "core/text.h"

namespace session {
namespace {

constexpr std::size_t kKeptCapacity = std::size_t{64} * 1024;

struct Prompt {
  std::string_view text;
  bool asksPassword;
};

// A blank behind a prompt is not waited for: it may never come.
constexpr std::array kLoginPrompts = {
    Prompt{"password", true},
    Prompt{"login:", false},
    Prompt{"Your callsign:", false},
    Prompt{"Callsign :", false},
    Prompt{"Please enter your call:", false},
    Prompt{"Please enter your callsign:", false},
    Prompt{"Enter new password:", true},
    Prompt{"Re-enter password:", true},
};

constexpr std::string_view kTncPrompt = "cmd:";

}  // namespace

LineBuffer::Event LineBuffer::Put(std::uint8_t byte, Prompts prompts) {
  if (byte == 0) return Event::Nul;
  if (byte <= 10) return Event::None;
  if (byte == '\r') {
    text_.resize(core::RTrim(text_).size());
    return Event::Line;
  }
  if (byte == ' ' && leadingBlanks_ == text_.size()) ++leadingBlanks_;
  text_ += static_cast<char>(byte);
  return AtPrompt(prompts);
}

LineBuffer::Event LineBuffer::AtPrompt(Prompts prompts) const {
  if (prompts == Prompts::None) return Event::None;
  if (prompts == Prompts::Tnc) {
    const std::string_view end = core::Right(text_, core::Len(kTncPrompt));
    return core::SameIgnoringCase(end, kTncPrompt) ? Event::Line : Event::None;
  }
  const std::string_view begun = std::string_view(text_).substr(leadingBlanks_);
  for (const Prompt& prompt : kLoginPrompts)
    if (begun == prompt.text) return prompt.asksPassword ? Event::PasswordPrompt : Event::Line;
  return Event::None;
}

void LineBuffer::Take(std::string& into) {
  into.swap(text_);
  Clear();
}

void LineBuffer::Clear() {
  GiveBackGiant(text_);
  text_.clear();
  leadingBlanks_ = 0;
}

void GiveBackGiant(std::string& text) {
  if (text.capacity() > kKeptCapacity) std::string().swap(text);
}

int RepairEscapes(std::string& line) { return core::RepairEscapes(line, ' '); }

}  // namespace session
