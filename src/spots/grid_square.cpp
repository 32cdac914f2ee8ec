#include "spots/grid_square.h"

#include <algorithm>

namespace spots {
namespace {

bool IsFieldLetter(char byte) { return byte >= 'A' && byte <= 'R'; }
bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

}  // namespace

bool ValidGrid4(std::string_view text) {
  if (text.size() < 4) return false;
  return std::all_of(text.begin(), text.begin() + 2, IsFieldLetter) &&
         std::all_of(text.begin() + 2, text.begin() + 4, IsDigit);
}

core::Coordinates CentreOfGrid(std::string_view grid) {
  const int fieldEast = grid[0] - 'A';
  const int fieldNorth = grid[1] - 'A';
  const int east = grid[2] - '0';
  const int north = grid[3] - '0';
  return {.latitude = north + 10 * fieldNorth + 0.5 - 90,
          .longitude = 180.0 - (2 * east + 20 * fieldEast + 1)};
}

Heading FindHeadingGrid(const Home& home, std::string_view grid) {
  if (!ValidGrid4(grid)) return {};
  return Bearing(home, CentreOfGrid(grid));
}

}  // namespace spots
