#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace core {

// A place as the operator writes it, in whole minutes.
struct Location {
  int latitudeDegrees = 0;
  int latitudeMinutes = 0;
  char latitudeLetter = 'N';  // or 'S'
  int longitudeDegrees = 0;
  int longitudeMinutes = 0;
  char longitudeLetter = 'E';  // or 'W'

  bool operator==(const Location&) const = default;
};

// Reads the latitude, then the longitude: degrees, then minutes and seconds if there are any, then
// the letter, in either case: "42 17 N 83 44 W", "42-17n, 083-44.4w", "42.28 N 83.74 W". What
// stands between them may be anything but letters. Rounded to the minute. Nothing for what is no
// place on earth.
std::optional<Location> ParseLocation(std::string_view text);

// "42 17 N 83 44 W".
std::string FormatLocation(const Location& location);

// In degrees. North is positive, and so is west: as everywhere in the program.
struct Coordinates {
  double latitude = 0;
  double longitude = 0;

  bool operator==(const Coordinates&) const = default;
};

Coordinates CoordinatesOf(const Location& location);

// Those of the setting "My Location"; both 0 if it can't be read.
Coordinates LatitudeLongitude(std::string_view myLocation);

}  // namespace core
