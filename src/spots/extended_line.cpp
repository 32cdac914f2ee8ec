#include "spots/extended_line.h"

#include <array>

#include "core/text.h"
#include "spots/caret_fields.h"
#include "spots/grid_square.h"
#include "spots/spot_line.h"

namespace spots {
namespace {

using core::Left;

constexpr std::size_t kAr17Last = 18;
constexpr FieldPlace kAr17Fields[] = {
    {3, &Spot::DxCall},   {4, &Spot::SpotDate},   {6, &Spot::Comment}, {7, &Spot::Spotter},
    {8, &Spot::Node},     {9, &Spot::DxCty},      {12, &Spot::DxCq},   {13, &Spot::DxItu},
    {15, &Spot::OrigCty}, {16, &Spot::OrigState},
};
constexpr std::string Spot::*kNotInAr17[] = {
    &Spot::OrigItu,  &Spot::OrigCq,       &Spot::DxState,   &Spot::DxGrid,
    &Spot::OrigGrid, &Spot::OrigLocation, &Spot::SpotterIp,
};

constexpr std::size_t kZv11ErrorLast = 13;
constexpr std::size_t kZv11NeededLast = 17;
constexpr FieldPlace kZv11Fields[] = {
    {2, &Spot::DxCall},   {3, &Spot::SpotDate}, {5, &Spot::Comment},    {6, &Spot::Spotter},
    {9, &Spot::Node},     {10, &Spot::DxItu},   {11, &Spot::DxCq},      {12, &Spot::OrigItu},
    {13, &Spot::OrigCq},  {14, &Spot::DxState}, {15, &Spot::OrigState}, {16, &Spot::DxCty},
    {17, &Spot::OrigCty}, {18, &Spot::DxGrid},  {19, &Spot::OrigGrid},
};

template <class Places>
void Fill(const Places& places, const CaretFields& fields, Spot& spot) {
  for (const FieldPlace& place : places) spot.*place.text = fields[place.number];
}

void PadZone(std::string& zone) {
  if (zone.size() == 1) zone.insert(zone.begin(), ' ');
}

// "05" and "5" become " 5"; what is no number, like "*4", stays.
void RewriteZone(std::string& zone) {
  const std::string_view number = core::Trim(zone);
  if (number.empty() || number.find_first_not_of("0123456789") != number.npos) return;
  const int value = core::ValInt(number);
  if (value < 10) zone.assign({' ', static_cast<char>('0' + value)});
}

void CleanCountry(std::string& country) {
  const std::string_view clean = CleanCtyField(country);
  const auto at = static_cast<std::size_t>(clean.data() - country.data());
  country.erase(at + clean.size());
  country.erase(0, at);
}

void CutGrid(std::string& grid) {
  if (ValidGrid4(grid)) grid.erase(4);
}

bool SpottedBySkimmer(const Spot& spot) { return spot.Spotter.ends_with('#'); }

// The place and the address stand before the end of a line that is long enough to have them.
void FillOrigin(const CaretFields& fields, Spot& spot) {
  const std::size_t last = fields.Last();
  spot.OrigLocation.clear();
  spot.SpotterIp.clear();
  if (SpottedBySkimmer(spot)) {
    if (last > 20) spot.OrigLocation = fields.FromEnd(1);
  } else if (last > 23) {
    spot.OrigLocation = fields.FromEnd(2);
  }
  if (last > 22) spot.SpotterIp = fields.FromEnd(1);
}

}  // namespace

LineOutcome ParseAr17Line(std::string_view line, Spot& spot) {
  const CaretFields fields(line);
  if (fields.Last() != kAr17Last) return LineOutcome::FieldError;
  if (fields[0] != "AR17" || line.size() > kLongestLine) return LineOutcome::None;
  for (std::string Spot::*text : kNotInAr17) (spot.*text).clear();
  Fill(kAr17Fields, fields, spot);
  spot.Freq = RoundHalfUp(core::Val(fields[2]), 1);
  SetTime(Left(fields[5], 4), spot);
  if (spot.DxCty.starts_with('+')) spot.DxCty.erase(0, 1);
  PadZone(spot.DxItu);
  PadZone(spot.DxCq);
  spot.ExpandedLine = true;
  return LineOutcome::Spot;
}

LineOutcome ParseZV11Line(std::string_view line, const NodeFacts& node, bool keepsGrids,
                          Spot& spot) {
  const CaretFields fields(line);
  if (fields.Last() <= kZv11ErrorLast) return LineOutcome::FieldError;
  if (fields[0] != "ZV11" || fields.Last() < kZv11NeededLast || line.size() > kLongestLine)
    return LineOutcome::None;
  Fill(kZv11Fields, fields, spot);
  spot.Freq = RoundHalfUp(core::Val(fields[1]), 1);
  SetTime(Left(fields[4], 4), spot);
  spot.ExpandedLine = node.IsZelva() && fields.FromEnd(0).empty();
  FillOrigin(fields, spot);
  for (std::string* zone : {&spot.DxItu, &spot.DxCq, &spot.OrigItu, &spot.OrigCq})
    RewriteZone(*zone);
  CleanCountry(spot.DxCty);
  CleanCountry(spot.OrigCty);
  if (keepsGrids) {
    CutGrid(spot.DxGrid);
    CutGrid(spot.OrigGrid);
  }
  spot.RawLine = line;
  return LineOutcome::Spot;
}

std::string_view CleanCtyField(std::string_view text) {
  text = text.substr(text.rfind('-') + 1);
  return text.substr(0, text.find('('));
}

}  // namespace spots
