#pragma once

#include <optional>
#include <string_view>

#include "filters/user_settings.h"

namespace filters {

// One line of a report about a user: "   Req Announce: Yes", "Name          : Anna". Nodes align
// the labels to the longest of the very report, so the blanks around them mean nothing.
struct Entry {
  std::string_view label;
  std::string_view value;  // without the blanks around it
};

// Nothing for a line without a label.
std::optional<Entry> EntryOf(std::string_view line);

// Whether the line begins the report about the user with that call, or about one of its SSIDs. What
// "sh/station" tells of him begins otherwise, but for the software that has no other report.
bool OpensReport(std::string_view line, std::string_view call);

// The switch that a label names.
std::optional<Switch> SwitchOf(std::string_view label);

// The personal value that a label names.
UserSettings::Pair UserSettings::*FieldOf(std::string_view label);

}  // namespace filters
