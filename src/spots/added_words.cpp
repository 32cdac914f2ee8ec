#include "spots/added_words.h"

#include "core/text.h"
#include "spots/grid_square.h"
#include "spots/state_codes.h"

namespace spots {
namespace {

using core::EndsWith;
using core::Left;
using core::Len;
using core::LTrim;
using core::Position;
using core::Right;
using core::RTrim;
using core::Trim;

// A shorter comment has no room for an added word.
constexpr Position kLeastWithWord = 24;
constexpr std::size_t kLongestCountry = 5;

constexpr int kLastZone = 90;
constexpr int kLastCqZone = 40;

// A zone that fits its field of two characters; 0 if the word is none.
int ZoneOf(std::string_view word) {
  if (word.empty() || word.size() > 2) return 0;
  for (const char byte : word)
    if (byte < '0' || byte > '9') return 0;
  const int zone = core::ValInt(word);
  return zone <= kLastZone ? zone : 0;
}

void SetZone(int zone, std::string& field) {
  const char tens = zone < 10 ? ' ' : static_cast<char>('0' + zone / 10);
  field.assign({tens, static_cast<char>('0' + zone % 10)});
}

// One side of a spot.
struct Slot {
  std::string& grid;
  std::string& state;
  std::string& itu;
  std::string& cq;
};

Slot DxSlot(Spot& spot) { return {spot.DxGrid, spot.DxState, spot.DxItu, spot.DxCq}; }
Slot OrigSlot(Spot& spot) { return {spot.OrigGrid, spot.OrigState, spot.OrigItu, spot.OrigCq}; }

// Which zone a number is; nothing if the node sends neither.
std::string* ZoneField(int zone, const SlotSwitches& switches, const Slot& slot) {
  if (zone > kLastCqZone) return &slot.itu;
  if (switches.Itu == NodeSwitch::On) return &slot.itu;
  if (switches.Cq == NodeSwitch::On) return &slot.cq;
  if (switches.Itu == NodeSwitch::Unknown) return &slot.itu;
  return switches.Cq == NodeSwitch::Unknown ? &slot.cq : nullptr;
}

// False if the word is none that a DXSpider adds.
bool FillSlot(std::string_view word, const SlotSwitches& switches, const Slot& slot) {
  if (switches.AllOff()) return false;
  if (word.size() == 4 && ValidGrid4(word)) {
    slot.grid = word;
    return true;
  }
  if (IsStateCode(word)) {
    slot.state = word;
    return true;
  }
  const int zone = ZoneOf(word);
  std::string* const field = zone > 0 ? ZoneField(zone, switches, slot) : nullptr;
  if (field == nullptr) return false;
  SetZone(zone, *field);
  return true;
}

std::string_view LastWord(std::string_view text) { return text.substr(text.rfind(' ') + 1); }

std::string_view WithoutPlus(std::string_view word) {
  if (core::StartsWith(word, "+")) word.remove_prefix(1);
  return word;
}

// The last word of a text that ends with it, if two blanks stand before it.
std::string_view WordSetApart(std::string_view text) {
  const std::string_view word = LastWord(text);
  const bool isApart = EndsWith(text.substr(0, text.size() - word.size()), "  ");
  return isApart ? word : std::string_view();
}

// Whether the word, being a state or a country, has gone into its field.
void SetUpper(std::string_view word, std::string& field) {
  field = word;
  for (char& byte : field) byte = core::UCase(byte);
}

bool TakeStateOrCountry(std::string_view word, const WordFacts& words, Spot& spot) {
  const std::string_view name = WithoutPlus(word);
  if (name.empty() || name.size() > kLongestCountry) return false;
  if (CallFitsState(spot.DxCall, name))
    spot.DxState = name;
  else if (words.isPrefix(name))
    SetUpper(name, spot.DxCty);
  else
    return false;
  return true;
}

// What stands before the added word of a text that ends in one blank behind it; the whole text if
// there is none.

std::string_view CutSlot(std::string_view text, const WordFacts& words, Spot& spot) {
  const std::string_view ended = Left(text, Len(text) - 1);
  const std::string_view word = LastWord(ended);
  if (!FillSlot(word, words.Slots, DxSlot(spot))) return text;
  return ended.substr(0, ended.size() - word.size());
}

std::string_view CutStateOrCountry(std::string_view text, const WordFacts& words, Spot& spot) {
  if (Len(text) < kLeastWithWord) return text;
  const std::string_view ended = Left(text, Len(text) - 1);
  const std::string_view word = WordSetApart(ended);
  if (!TakeStateOrCountry(word, words, spot)) return text;
  return ended.substr(0, ended.size() - word.size());
}

// A word of up to five characters that two blanks set apart at the end of a comment, with the
// blanks behind it: a country, or a zone.
std::string_view ExtractTrailingCty(std::string_view text) {
  if (Len(text) < kLeastWithWord) return {};
  std::string_view word = LTrim(Right(text, 8));
  for (const Position length : {7, 6, 5, 4}) {
    if (Len(word) < length) return word;
    word = LTrim(Right(text, length));
  }
  return Len(word) >= 3 ? std::string_view() : word;
}

std::string_view CutTrailingCty(std::string_view text, Spot& spot) {
  const std::string_view word = ExtractTrailingCty(text);
  spot.DxCty = WithoutPlus(Trim(word));
  return Left(text, Len(text) - Len(word));
}

// Lists leave one blank or two between the word and the spotter. `cut` is the text without the one.
std::string_view CutListedWord(std::string_view text, std::string_view cut, const NodeFacts& node,
                               const WordFacts& words, Spot& spot) {
  const bool isFull = cut.size() == text.size();
  if (isFull || node.IsSpider()) return cut;
  const bool leavesTwo = EndsWith(cut, " ");
  if (words.CountriesLoaded) return CutStateOrCountry(leavesTwo ? cut : text, words, spot);
  return leavesTwo ? CutTrailingCty(cut, spot) : cut;
}

}  // namespace

void ReadComment(std::string_view text, const NodeFacts& node, const WordFacts& words, Spot& spot) {
  if (!EndsWith(text, " "))
    spot.Comment = node.KeepsLeadingBlanks() ? text : LTrim(text);
  else if (node.IsSpider())
    spot.Comment = Trim(CutSlot(text, words, spot));
  else if (words.CountriesLoaded)
    spot.Comment = Trim(CutStateOrCountry(text, words, spot));
  else
    spot.Comment = Trim(CutTrailingCty(text, spot));
}

void ReadListComment(std::string_view text, const NodeFacts& node, const WordFacts& words,
                     Spot& spot) {
  spot.DxCty.clear();
  const std::string_view cut = EndsWith(text, " ") ? Left(text, Len(text) - 1) : text;
  const std::string_view comment = CutListedWord(text, cut, node, words, spot);
  const bool keepsLeading = node.KeepsLeadingBlanks() && EndsWith(cut, " ");
  spot.Comment = keepsLeading ? RTrim(comment) : Trim(comment);
}

void ReadOrigText(std::string_view text, const NodeFacts& node, const WordFacts& words,
                  Spot& spot) {
  const std::string_view word = Trim(text);
  if (node.IsSpider() && FillSlot(word, words.Slots, OrigSlot(spot))) return;
  spot.OrigCty = word;
}

}  // namespace spots
