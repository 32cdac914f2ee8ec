#pragma once

#include <string_view>

#include "core/location.h"
#include "spots/bearing.h"

namespace spots {

// Whether the first four characters are a grid square: "FN20AB" is one, "FS20" and "fn20" are not.
bool ValidGrid4(std::string_view text);

// The centre of the square that a valid text begins with.
core::Coordinates CentreOfGrid(std::string_view grid);

// Empty for what is no grid square.
Heading FindHeadingGrid(const Home& home, std::string_view grid);

}  // namespace spots
