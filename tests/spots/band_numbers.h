#pragma once

// Places of bands in the program's table of bands.
inline constexpr int k40m = 4;
inline constexpr int k20m = 6;
inline constexpr int k15m = 8;
