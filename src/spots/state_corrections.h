#pragma once

#include <string>
#include <string_view>

// What the state of a station says about its country and zones, and its call about its province.
// Zones are two characters, right-aligned; a "*" before one: the place spans several, and this is
// the main one. Meant for nodes that don't send right values themselves.
namespace spots {

// A part of the United States that is a country of its own.
struct Possession {
  std::string_view country;
  std::string_view state;
  std::string_view cq;
  std::string_view itu;
};

// Nothing if the country is none of them.
const Possession* PossessionOf(std::string_view country);

// The province by the call's prefix or suffix ("VE3/K1ABC", "VE3ABC/7"); by `state` for a call
// without any. Sets state and zones, or leaves them all.
void ProvinceFromCall(std::string& state, std::string_view call, std::string& cq, std::string& itu);

// The country and zones by the state. Without one they are those of a station of the United States
// somewhere: "K", and blank zones. A state of two blanks is emptied and changes nothing else.
void StateToCountry(std::string& state, std::string& country, std::string& cq, std::string& itu);

}  // namespace spots
