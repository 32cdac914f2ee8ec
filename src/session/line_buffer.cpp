#include "session/line_buffer.h"

#include <algorithm>
#include <array>

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

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  const char lower = core::LCase(digit);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that the escape at `at` names; 0 if there is none.
unsigned EscapedByte(std::string_view line, std::size_t at) {
  if (at + 2 >= line.size()) return 0;
  const int high = HexDigit(line[at + 1]);
  const int low = HexDigit(line[at + 2]);
  return high < 0 || low < 0 ? 0 : static_cast<unsigned>(high * 16 + low);
}

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

int RepairEscapes(std::string& line) {
  std::size_t read = line.find('%');
  if (read == std::string::npos) return 0;
  int repaired = 0;
  std::size_t written = read;
  while (read < line.size()) {
    if (line[read] != '%') {
      line[written++] = line[read++];
      continue;
    }
    const unsigned byte = EscapedByte(line, read);
    if (byte < ' ') break;
    ++repaired;
    read += 2;
    line[read] = static_cast<char>(byte);
    if (byte != '%') line[written++] = line[read++];
  }
  line.erase(written, read - written);
  return repaired;
}

}  // namespace session
