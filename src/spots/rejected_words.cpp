#include "spots/rejected_words.h"

#include <algorithm>

#include "core/text.h"

namespace spots {
namespace {

std::size_t Byte(char byte) { return static_cast<unsigned char>(byte); }

}  // namespace

std::size_t RejectedWords::PairOf(char first, char second) {
  return Byte(first) * 256 + Byte(second);
}

void RejectedWords::Clear() {
  words_.clear();
  for (auto& places : byFirst_) places.clear();
  pairs_.reset();
}

void RejectedWords::Add(std::string_view word) {
  words_.push_back(core::LCase(word));
  const std::string& folded = words_.back();
  byFirst_[Byte(folded[0])].push_back(words_.size() - 1);
  if (folded.size() > 1) {
    pairs_.set(PairOf(folded[0], folded[1]));
    return;
  }
  for (std::size_t second = 0; second < 256; ++second) pairs_.set(Byte(folded[0]) * 256 + second);
}

RejectedWords::Place RejectedWords::FirstIn(std::string_view comment) {
  comment_.resize(comment.size());
  std::transform(comment.begin(), comment.end(), comment_.begin(),
                 [](char byte) { return core::LCase(byte); });
  std::size_t first = words_.size();
  for (std::size_t at = 0; at < comment_.size(); ++at) {
    // Behind the last byte stands a zero.
    if (!pairs_.test(PairOf(comment_[at], comment_.c_str()[at + 1]))) continue;
    const std::string_view rest = std::string_view(comment_).substr(at);
    for (const std::size_t place : byFirst_[Byte(comment_[at])]) {
      if (place >= first) break;
      if (rest.starts_with(words_[place])) first = place;
    }
  }
  return first == words_.size() ? Place() : first;
}

}  // namespace spots
