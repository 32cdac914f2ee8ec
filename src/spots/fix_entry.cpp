#include "spots/fix_entry.h"

#include <algorithm>

#include "core/quoted.h"
#include "core/text.h"

namespace spots {
namespace {

struct Column {
  core::Position from;
  std::size_t width;
};
constexpr Column kCall = {1, kFixCallWidth};
constexpr Column kUsed = {19, 1};
constexpr Column kSeam = {kFixCallWidth, 2};  // the last of the call, and the first behind it
constexpr Column kMask = {49, 2};
constexpr std::array<Column, kFixFields> kColumns = {{{21, 5}, {27, 3}, {30, 2}, {33, 2}, {36, 4}}};
constexpr std::size_t kRowWidth = 50;
constexpr char kUsedMark = '5';
constexpr unsigned kAllBits = (1u << kFixFields) - 1;

std::string_view Cut(std::string_view row, Column column) {
  return core::Mid(row, column.from, static_cast<core::Position>(column.width));
}

void Put(std::string& row, Column column, std::string_view text) {
  const auto width = std::min(column.width, text.size());
  std::copy_n(text.begin(), width, row.begin() + (column.from - 1));
}

// What stays one field of one record.
bool IsFixText(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c <= '~' && c != ',' && c != '"'; });
}

bool IsCallByte(char byte) {
  const char upper = core::UCase(byte);
  return (upper >= 'A' && upper <= 'Z') || (byte >= '0' && byte <= '9') || byte == '/' ||
         byte == '-' || byte == '#';
}

bool IsFixCall(std::string_view call) {
  if (call.empty() || call.size() > kCall.width) return false;
  if (call.ends_with('*')) call.remove_suffix(1);
  return std::all_of(call.begin(), call.end(), IsCallByte);
}

bool IsHeading(std::string_view call) {
  return core::SameIgnoringCase(call, "CALL") || core::SameIgnoringCase(call, "oldcall");
}

std::string CleanField(std::size_t field, std::string_view text) {
  std::string value(core::Trim(core::Trim(text).substr(0, kColumns[field].width)));
  const bool zone = field == kFixCq || field == kFixItu;
  if (zone && value.size() == 1) value.insert(0, 1, ' ');
  return value;
}

unsigned Mask(std::string_view text) {
  return static_cast<unsigned>(std::max(core::ValInt(text), 0)) & kAllBits;
}

// Takes the next field of a record: what stands in quotes, or as it is, up to the comma.
std::string_view TakeField(std::string_view& record) {
  record = core::LTrim(record);
  if (!record.starts_with('"')) return core::ExtractToCharacter(',', record);
  record.remove_prefix(1);
  const std::string_view field = core::ExtractToCharacter('"', record);
  core::ExtractToCharacter(',', record);
  return field;
}

std::optional<FixEntry> ParseRecord(std::string_view record) {
  const std::string_view call = TakeField(record);
  std::array<std::string_view, kFixFields> fields;
  for (std::string_view& field : fields) field = TakeField(record);
  auto entry = MakeFixEntry(call, fields);
  if (!entry) return std::nullopt;
  entry->FixMask = Mask(TakeField(record));
  entry->used = entry->FixMask != 0;
  return entry;
}

// A word that runs on behind the columns of a call is none, nor is its beginning.
bool RunsOn(std::string_view row) {
  const std::string_view seam = core::Trim(Cut(row, kSeam));
  return seam.size() == kSeam.width && seam.back() != kUsedMark;
}

std::optional<FixEntry> ParseRow(std::string_view row) {
  if (RunsOn(row)) return std::nullopt;
  std::array<std::string_view, kFixFields> fields;
  for (std::size_t i = 0; i < kFixFields; ++i) fields[i] = Cut(row, kColumns[i]);
  auto entry = MakeFixEntry(Cut(row, kCall), fields);
  if (!entry) return std::nullopt;
  entry->FixMask = Mask(Cut(row, kMask));
  entry->used = entry->FixMask != 0 || Cut(row, kUsed).starts_with(kUsedMark);
  return entry;
}

// Empty for a row that is no entry.
std::string FixRecord(std::string_view row) {
  const auto entry = ParseRow(row);
  if (!entry) return {};
  const auto field = [&](FixField which) {
    return core::QuotedField(core::Trim(entry->fields[which]));
  };
  return core::Record({core::QuotedField(entry->FixCall), field(kFixCty), field(kFixState),
                       field(kFixCq), field(kFixItu), field(kFixGrid),
                       core::QuotedField(core::Digits(entry->FixMask, kMask.width))});
}

}  // namespace

std::string_view FixEntry::Stem() const {
  return std::string_view(FixCall).substr(0, FixCall.size() - (IsPrefix() ? 1 : 0));
}

std::optional<FixEntry> MakeFixEntry(std::string_view call,
                                     const std::array<std::string_view, kFixFields>& fields) {
  call = core::Trim(call);
  if (!IsFixCall(call) || IsHeading(call)) return std::nullopt;
  FixEntry entry;
  entry.FixCall = call;
  for (std::size_t i = 0; i < kFixFields; ++i) entry.fields[i] = CleanField(i, fields[i]);
  if (!std::all_of(entry.fields.begin(), entry.fields.end(), IsFixText)) return std::nullopt;
  return entry;
}

bool IsFixRow(std::string_view line) { return line.find(',') == std::string_view::npos; }

bool IsFixHeading(std::string_view line) {
  const std::string_view call = core::Trim(IsFixRow(line) ? Cut(line, kCall) : TakeField(line));
  return call.empty() || IsHeading(call);
}

std::optional<FixEntry> ParseFixLine(std::string_view line) {
  return IsFixRow(line) ? ParseRow(line) : ParseRecord(line);
}

std::string FixRow(const FixEntry& entry) {
  std::string row(kRowWidth, ' ');
  Put(row, kCall, entry.FixCall);
  if (entry.used) Put(row, kUsed, std::string_view(&kUsedMark, 1));
  for (std::size_t i = 0; i < kFixFields; ++i) Put(row, kColumns[i], entry.fields[i]);
  Put(row, kMask, core::Digits(entry.FixMask, kMask.width));
  return row;
}

std::string CBOtoFixSpotsConversion(const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows) text += FixRecord(row);
  return text;
}

}  // namespace spots
