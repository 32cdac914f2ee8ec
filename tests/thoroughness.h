#pragma once

#include <cstddef>

// What the sanitizers watch takes ten times as long: there a walk over every byte or every seed
// takes one of this many, and elsewhere all of them. What only measures memory leaves it to the
// programs without them.
#ifdef MOLVA_SANITIZED
inline constexpr std::size_t kOneOf = 7;
inline constexpr bool kMeasuresMemory = false;
#else
inline constexpr std::size_t kOneOf = 1;
inline constexpr bool kMeasuresMemory = true;
#endif
