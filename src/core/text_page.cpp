#include "core/text_page.h"

namespace core {
namespace {

constexpr std::size_t kLineEnd = 2;

}  // namespace

void TextPage::Append(std::string_view line) {
  line = line.substr(0, kMostCharacters);
  const std::size_t removed = characters_ > kMostCharacters ? Cut() : 0;
  lines_.emplace_back(line);
  characters_ += line.size() + kLineEnd;
  observers_.Tell({.removed = removed, .added = 1});
}

void TextPage::Clear() {
  const std::size_t removed = lines_.size();
  lines_.clear();
  characters_ = 0;
  if (removed > 0) observers_.Tell({.removed = removed, .added = 0});
}

platform::Registration TextPage::Observe(std::function<void(const Change&)> observer) {
  if (!lines_.empty()) observer({.removed = 0, .added = lines_.size()});
  return observers_.Add(std::move(observer));
}

std::size_t TextPage::Cut() {
  std::size_t removed = 0;
  std::size_t gone = 0;
  while (!lines_.empty() && gone <= kCutFrom) {
    gone += lines_.front().size() + kLineEnd;
    lines_.pop_front();
    ++removed;
  }
  characters_ -= gone;
  return removed;
}

}  // namespace core
