#pragma once

#include <set>
#include <string>
#include <string_view>

// Which pictures of the window there are: a page shows them, the command makes them.
namespace checks {

using PictureNames = std::set<std::string>;

// Those that a page in Markdown shows, "![...](../pictures/window.png)", by their names without the
// ending.
PictureNames ShownBy(const std::string& page);

// Those that the command has rows for, `Picture("window", ...)`, in the table of tools/pictures.
PictureNames MadeBy(const std::string& table);

}  // namespace checks
