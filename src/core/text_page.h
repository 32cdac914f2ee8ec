#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

#include "core/observers.h"

namespace core {

// A page of lines that forgets the oldest: once it holds more than kMostCharacters, the next line
// first takes out what stands before kCutFrom, up to the first line end whose CR stands there or
// behind. Every line counts two characters for its end. Of a line longer than the page only its
// beginning is kept.
class TextPage {
 public:
  static constexpr std::size_t kMostCharacters = 20000;
  static constexpr std::size_t kCutFrom = 5000;

  // What happened: the first `removed` lines went, then `added` lines came at the end.
  struct Change {
    std::size_t removed = 0;
    std::size_t added = 0;
  };

  void Append(std::string_view line);
  void Clear();

  const std::deque<std::string>& Lines() const { return lines_; }
  std::size_t Characters() const { return characters_; }

  // Told of each change until the result goes; what stands here already is told as added at once.
  platform::Registration Observe(std::function<void(const Change&)> observer);

 private:
  std::size_t Cut();

  std::deque<std::string> lines_;
  std::size_t characters_ = 0;
  Observers<const Change&> observers_;
};

}  // namespace core
