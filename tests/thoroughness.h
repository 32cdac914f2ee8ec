#pragma once

#include <cstddef>

// What the sanitizers watch takes ten times as long: there a walk over every byte or every seed
// takes one of this many, and elsewhere all of them.
#ifdef MOLVA_SANITIZED
inline constexpr std::size_t kOneOf = 7;
#else
inline constexpr std::size_t kOneOf = 1;
#endif
