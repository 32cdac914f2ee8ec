#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// What must hold for any input; without it the fuzzer stops.
inline void Expect(bool holds) {
  if (!holds) std::abort();
}
