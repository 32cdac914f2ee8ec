#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <string_view>

#include "spots/spot.h"

namespace spots {

// The first columns of an item of a sorted list: blanks, until something is put there. What is too
// long is cut, as it is for the list.
template <std::size_t Size>
class SortKey {
 public:
  SortKey() { bytes_.fill(' '); }

  // Positions count from 1.
  void Put(std::size_t position, std::size_t width, std::string_view text) {
    const std::string_view fitting = text.substr(0, width);
    std::copy(fitting.begin(), fitting.end(), bytes_.begin() + Place(position));
  }
  // With leading zeros.
  void PutDigits(std::size_t position, std::size_t width, int number) {
    std::array<char, 16> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    PutZeros(position, width, {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
  }
  // In 10 columns, as "00014025.0".
  void PutFrequency(std::size_t position, double kHz) {
    constexpr std::size_t width = 10;
    constexpr double most = 99'999'999.9;
    std::array<char, 32> digits;
    const double rounded = RoundHalfUp(std::clamp(kHz, 0.0, most), 1);
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), rounded,
                                   std::chars_format::fixed, 1);
    PutZeros(position, width, {digits.data(), static_cast<std::size_t>(end.ptr - digits.data())});
  }

  std::string_view Text() const { return {bytes_.data(), bytes_.size()}; }

 private:
  static std::ptrdiff_t Place(std::size_t position) {
    return static_cast<std::ptrdiff_t>(position - 1);
  }
  void PutZeros(std::size_t position, std::size_t width, std::string_view digits) {
    const std::string_view fitting = digits.substr(0, width);
    const auto start = bytes_.begin() + Place(position);
    std::fill_n(start, width - fitting.size(), '0');
    std::copy(fitting.begin(), fitting.end(),
              start + static_cast<std::ptrdiff_t>(width - fitting.size()));
  }

  std::array<char, Size> bytes_;
};

}  // namespace spots
