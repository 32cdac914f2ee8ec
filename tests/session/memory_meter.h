#pragma once

#include <cstddef>

// What this test program has on the heap through operator new.
struct MemoryMeter {
  static std::size_t Live();       // bytes in use
  static std::size_t Allocated();  // bytes ever asked for
};
