#pragma once

#include <array>
#include <string_view>

namespace practice_node {

struct Band {
  std::string_view name;  // in metres; "70" is the one of 70 cm
  int low;                // kHz
  int high;
};

inline constexpr std::array<Band, 15> kBands = {{
    {"160", 1800, 2000},
    {"80", 3500, 4000},
    {"60", 5200, 5500},
    {"40", 7000, 7300},
    {"30", 10100, 10150},
    {"20", 14000, 14350},
    {"17", 18068, 18168},
    {"15", 21000, 21450},
    {"12", 24890, 24990},
    {"10", 28000, 29700},
    {"6", 50000, 54000},
    {"4", 70000, 70650},
    {"2", 144000, 148000},
    {"220", 218000, 230000},
    {"70", 420000, 450000},
}};

}  // namespace practice_node
