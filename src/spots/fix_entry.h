#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// One correction of what nodes say of a call, and its two forms in text: a row of 50 columns, and a
// record of quoted fields. Text in, values out.
namespace spots {

inline constexpr std::size_t kFixCallWidth = 18;  // at the start of a row

// The fields that can be corrected, in their order everywhere; the bit of each is 1 << field.
enum FixField : std::size_t { kFixCty, kFixState, kFixCq, kFixItu, kFixGrid, kFixFields };

struct FixEntry {
  std::string FixCall;  // ends in "*": the beginning of calls
  // An empty field corrects nothing. Zones are two characters, right-aligned.
  std::array<std::string, kFixFields> fields;
  unsigned FixMask = 0;  // bits of the fields that have ever applied
  bool used = false;     // it has matched
  unsigned changed = 0;  // bits of the fields that have applied since it was read

  bool IsPrefix() const { return !FixCall.empty() && FixCall.back() == '*'; }
  // What is before the "*".
  std::string_view Stem() const;
};

// The entry of these texts, trimmed and cut to the widths of a row. Nothing if the call has none of
// a call's form (letters, digits, "/", "-" and "#", 18 of them at most, a "*" as the last), is one
// of the words that head a list ("CALL", "oldcall"), or if a field is no plain text.
std::optional<FixEntry> MakeFixEntry(std::string_view call,
                                     const std::array<std::string_view, kFixFields>& fields);

// Reads a line of either form. Nothing for an empty or malformed line and for a heading. Of a row
// the first 50 columns count.
std::optional<FixEntry> ParseFixLine(std::string_view line);
bool IsFixRow(std::string_view line);      // the form of columns
bool IsFixHeading(std::string_view line);  // or a line that is empty

// The row: 50 characters.
std::string FixRow(const FixEntry& entry);
// The records of these rows: the text of fixspots.dat. What is no entry is passed over.
std::string CBOtoFixSpotsConversion(const std::vector<std::string>& rows);

}  // namespace spots
