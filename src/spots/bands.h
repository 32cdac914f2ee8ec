#pragma once

#include <array>
#include <limits>
#include <string_view>

namespace spots {

// A band is known by its place in this table: in the rail of bands, in the stores, as the colour of
// a row. kHz, both ends included.
struct Band {
  std::string_view label;
  double from;
  double to;
};

inline constexpr int kAllBands = 0;
inline constexpr int kAlarmBand = 17;  // no band of its own: what raised an alarm, on any band

inline constexpr double kNever = std::numeric_limits<double>::infinity();
// The microwaves begin above their limit, not at it.
inline constexpr double kMicrowaves = 902000 * (1 + std::numeric_limits<double>::epsilon());

inline constexpr std::array<Band, 18> kBands = {{
    {"All", kNever, kNever},
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
    {"2", 144000, 148000},
    {"1", 219000, 225000},
    {"70", 420000, 450000},
    {"MW", kMicrowaves, kNever},
    {"4", 70000, 70650},
    {"Alarm", kNever, kNever},
}};

inline constexpr int kBandCount = static_cast<int>(kBands.size());

constexpr const Band& BandAt(int band) { return kBands[static_cast<std::size_t>(band)]; }

// The band that holds the frequency; 0 if none does.
int BandOf(double kHz);

}  // namespace spots
