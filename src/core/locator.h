#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/location.h"

namespace core {

// A locator, which operators call their grid: "EN82" for a square, "EN82DG" for a part of it.
// Letters count in either case.

// How many characters from the left can be those of a locator; at most six.
std::size_t LocatorStart(std::string_view text);

// The centre of a locator of four or six characters, rounded to the minute; nothing for any other
// text.
std::optional<Location> CentreOfLocator(std::string_view text);

}  // namespace core
