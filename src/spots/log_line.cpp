#include "spots/log_line.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

#include "core/text.h"

namespace spots {
namespace {

constexpr std::size_t kShortest = 11;
constexpr std::size_t kLongest = 2000;
constexpr std::string_view kLogLineEnd = "~\r\n";

// The fields in their order; the frequency, which is no text, has no member here.
constexpr std::array<std::string Spot::*, 18> kFields = {
    &Spot::SpotTime, nullptr,          &Spot::DxCall,   &Spot::Spotter, &Spot::Node,
    &Spot::Comment,  &Spot::LotwMark,  &Spot::DxItu,    &Spot::OrigItu, &Spot::DxCq,
    &Spot::OrigCq,   &Spot::DxGrid,    &Spot::OrigGrid, &Spot::DxCty,   &Spot::OrigCty,
    &Spot::DxState,  &Spot::OrigState, &Spot::SpotterIp};

struct Escape {
  char byte;
  std::string_view text;
};
constexpr std::array kEscapes = {Escape{'"', "%22"}, Escape{',', "%2C"}, Escape{'^', "%5E"}};

bool IsControl(char byte) { return static_cast<unsigned char>(byte) < ' '; }

bool StandsForItself(char byte) {
  return !IsControl(byte) && byte != '"' && byte != ',' && byte != '^';
}

void AppendEscaped(char byte, std::string& out) {
  const auto* const escape = std::ranges::find(kEscapes, byte, &Escape::byte);
  if (escape == kEscapes.end())
    out += ' ';
  else
    out += escape->text;
}

void AppendField(std::string_view text, std::string& out) {
  while (!text.empty()) {
    const auto plain = std::ranges::find_if_not(text, StandsForItself) - text.begin();
    out += text.substr(0, static_cast<std::size_t>(plain));
    text.remove_prefix(static_cast<std::size_t>(plain));
    if (text.empty()) return;
    AppendEscaped(text.front(), out);
    text.remove_prefix(1);
  }
}

// Every digit that the frequency has, and a point.
void AppendFrequencyField(double kHz, std::string& out) {
  std::array<char, 512> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), kHz, std::chars_format::fixed);
  const std::string_view digits(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
  out += digits;
  if (digits.find('.') == std::string_view::npos) out += ".0";
}

// Undoes the escapes of the log and no others: those that the node sent are left to the display.
void ReadField(std::string_view field, std::string& text) {
  text.clear();
  for (std::size_t at = field.find('%'); at != std::string_view::npos; at = field.find('%')) {
    const auto* const escape = std::ranges::find(kEscapes, field.substr(at, 3), &Escape::text);
    text += field.substr(0, at);
    text += escape == kEscapes.end() ? '%' : escape->byte;
    field.remove_prefix(escape == kEscapes.end() ? at + 1 : at + 3);
  }
  text += field;
}

void ReadFields(std::string_view line, Spot& spot) {
  const char separator = line.find('^') == std::string_view::npos ? ',' : '^';
  for (std::string Spot::*const member : kFields) {
    const std::string_view field = core::ExtractToCharacter(separator, line);
    if (member == nullptr)
      spot.Freq = core::Val(field);
    else
      ReadField(field, spot.*member);
  }
  spot.SpotHHMM = core::ValInt(spot.SpotTime);
  spot.OrigLocation.clear();
  spot.RawLine.clear();
  spot.ExpandedLine = false;
}

bool HasTime(const Spot& spot) {
  const bool isNumber =
      !spot.SpotTime.empty() && spot.SpotTime[0] >= '0' && spot.SpotTime[0] <= '9';
  return isNumber && spot.SpotHHMM / 100 < 24 && spot.SpotHHMM % 100 < 60;
}

bool IsSpot(const Spot& spot) {
  return spot.Freq > 0 && spot.DxCall.size() >= 2 && spot.Spotter.size() >= 3 && HasTime(spot);
}

}  // namespace

void AppendLogLine(const Spot& spot, LogForm form, std::string& out) {
  for (std::string Spot::*const member : kFields) {
    if (member == nullptr)
      AppendFrequencyField(spot.Freq, out);
    else
      AppendField(spot.*member, out);
    out += static_cast<char>(form);
  }
  out += kLogLineEnd;
}

bool ParseLogLine(std::string_view line, Spot& spot) {
  if (line.size() < kShortest || line.size() > kLongest) return false;
  if (std::ranges::any_of(line, IsControl)) return false;
  if (line.find('"') == std::string_view::npos) {
    ReadFields(line, spot);
  } else {
    std::string unquoted(line);
    std::erase(unquoted, '"');
    ReadFields(unquoted, spot);
  }
  return IsSpot(spot);
}

}  // namespace spots
