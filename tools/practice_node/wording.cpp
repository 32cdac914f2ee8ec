#include "practice_node/wording.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace practice_node {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                      "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::size_t kLongestQuote = 40;

const Meaning* Find(std::initializer_list<Meaning> meanings, char letter) {
  const auto* found = std::find_if(meanings.begin(), meanings.end(),
                                   [&](const Meaning& each) { return each.letter == letter; });
  return found == meanings.end() ? nullptr : found;
}

}  // namespace

std::string Expand(std::string_view pattern, std::initializer_list<Meaning> meanings) {
  std::string text;
  for (std::size_t at = 0; at < pattern.size(); ++at) {
    const bool letterFollows = pattern[at] == '%' && at + 1 < pattern.size();
    const Meaning* meaning = letterFollows ? Find(meanings, pattern[at + 1]) : nullptr;
    if (!meaning) {
      text += pattern[at];
      continue;
    }
    text += meaning->text;
    ++at;
  }
  return text;
}

std::string DateText(platform::UtcTime time) {
  const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(time));
  const auto month = kMonths[static_cast<unsigned>(date.month()) - 1];
  return PadLeft(std::to_string(static_cast<unsigned>(date.day())), 2) + "-" + std::string(month) +
         "-" + std::to_string(static_cast<int>(date.year()));
}

std::string TimeText(platform::UtcTime time) {
  const auto sinceMidnight = time - std::chrono::floor<std::chrono::days>(time);
  const auto minutes =
      static_cast<unsigned>(std::chrono::floor<std::chrono::minutes>(sinceMidnight).count());
  return core::Digits(minutes / 60, 2) + core::Digits(minutes % 60, 2) + "Z";
}

std::string PadRight(std::string_view text, std::size_t width) {
  std::string padded(text);
  padded.resize(std::max(width, text.size()), ' ');
  return padded;
}

std::string PadLeft(std::string_view text, std::size_t width) {
  return std::string(width - std::min(width, text.size()), ' ') + std::string(text);
}

std::string Quotable(std::string_view text) {
  std::string quote(text.substr(0, kLongestQuote));
  std::erase_if(quote, [](char each) { return static_cast<unsigned char>(each) < ' '; });
  return quote;
}

}  // namespace practice_node
