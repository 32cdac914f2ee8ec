#include "core/location.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"

namespace core {
namespace {

constexpr int kMinutesInDegree = 60;

bool IsNumeral(char byte) { return (byte >= '0' && byte <= '9') || byte == '.'; }

bool IsLetter(char byte) { return byte >= 'A' && byte <= 'Z'; }

// One half of a location: the minutes of arc up to its letter.
struct Half {
  int minutes = 0;
  char letter = '\0';

  int Degrees() const { return minutes / kMinutesInDegree; }
  int Rest() const { return minutes % kMinutesInDegree; }
};

std::string_view TakeNumeral(std::string_view& text) {
  std::size_t length = 0;
  while (length < text.size() && IsNumeral(text[length])) ++length;
  const std::string_view numeral = text.substr(0, length);
  text.remove_prefix(length);
  return numeral;
}

// Degrees, minutes and seconds, each a sixtieth of the one before.
class Angle {
 public:
  // False if it is out of range or one too many.
  bool Add(double number) {
    const bool fits = count_ == 0 || (number < kMinutesInDegree && count_ < 3);
    minutes_ += number * unit_;
    unit_ /= kMinutesInDegree;
    ++count_;
    return fits;
  }
  bool Within(int degrees) const {
    return count_ > 0 &&
           std::lround(std::min(minutes_, kTooMuch)) <= long{degrees} * kMinutesInDegree;
  }
  int Minutes() const { return static_cast<int>(std::lround(minutes_)); }

 private:
  static constexpr double kTooMuch = 1e6;
  double minutes_ = 0;
  double unit_ = kMinutesInDegree;
  int count_ = 0;
};

// Takes the text up to one of the two letters.
std::optional<Half> TakeHalf(std::string_view& text, char one, char other, int mostDegrees) {
  Angle angle;
  while (!text.empty()) {
    if (IsNumeral(text.front())) {
      if (!angle.Add(Val(TakeNumeral(text)))) return std::nullopt;
      continue;
    }
    const char letter = UCase(text.front());
    text.remove_prefix(1);
    if (!IsLetter(letter)) continue;
    if ((letter != one && letter != other) || !angle.Within(mostDegrees)) return std::nullopt;
    return Half{angle.Minutes(), letter};
  }
  return std::nullopt;
}

}  // namespace

std::optional<Location> ParseLocation(std::string_view text) {
  const auto latitude = TakeHalf(text, 'N', 'S', 90);
  if (!latitude) return std::nullopt;
  const auto longitude = TakeHalf(text, 'E', 'W', 180);
  if (!longitude) return std::nullopt;
  return Location{latitude->Degrees(),  latitude->Rest(),  latitude->letter,
                  longitude->Degrees(), longitude->Rest(), longitude->letter};
}

std::string FormatLocation(const Location& location) {
  const auto half = [](int degrees, int minutes, char letter) {
    return std::to_string(degrees) + ' ' + std::to_string(minutes) + ' ' + letter;
  };
  return half(location.latitudeDegrees, location.latitudeMinutes, location.latitudeLetter) + ' ' +
         half(location.longitudeDegrees, location.longitudeMinutes, location.longitudeLetter);
}

Coordinates CoordinatesOf(const Location& location) {
  const auto degrees = [](int whole, int minutes) {
    return whole + minutes / static_cast<double>(kMinutesInDegree);
  };
  const double latitude = degrees(location.latitudeDegrees, location.latitudeMinutes);
  const double longitude = degrees(location.longitudeDegrees, location.longitudeMinutes);
  return {location.latitudeLetter == 'S' ? -latitude : latitude,
          location.longitudeLetter == 'E' ? -longitude : longitude};
}

Coordinates LatitudeLongitude(std::string_view myLocation) {
  const auto location = ParseLocation(myLocation);
  return location ? CoordinatesOf(*location) : Coordinates{};
}

}  // namespace core
