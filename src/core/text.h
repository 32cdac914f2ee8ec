#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Text is bytes. Positions count from 1. Case is that of the ASCII letters; every other byte stands
// for itself. Nothing here depends on the locale, and no arguments make a call read outside its
// text or throw: what lies outside is empty text, position 0, or number 0.
//
// A view that is given back points into the text that was handed in and lives as long as that.
namespace core {

using Position = std::ptrdiff_t;

Position Len(std::string_view text);

// The first or the last `count` bytes; all of them if there are fewer. Empty for a count below 1.
std::string_view Left(std::string_view text, Position count);
std::string_view Right(std::string_view text, Position count);

// What stands from `start` on, `count` bytes at most. Empty for a start or a count below 1.
std::string_view Mid(std::string_view text, Position start);
std::string_view Mid(std::string_view text, Position start, Position count);

// Where `what` stands first, at `start` or behind it; 0 if nowhere, or for a start below 1. An
// empty `what` stands at every position that holds a byte.
Position InStr(std::string_view text, std::string_view what);
Position InStr(Position start, std::string_view text, std::string_view what);
Position InStrIgnoringCase(std::string_view text, std::string_view what);
Position InStrIgnoringCase(Position start, std::string_view text, std::string_view what);

bool StartsWith(std::string_view text, std::string_view beginning);
bool EndsWith(std::string_view text, std::string_view ending);
bool SameIgnoringCase(std::string_view a, std::string_view b);
bool StartsWithIgnoringCase(std::string_view text, std::string_view beginning);

// The number that a text begins with: blanks, a sign, digits with one decimal point, an exponent
// ("1e3"). Ends at the first byte that doesn't fit, a blank behind the sign or inside included.
// Without a number, and for one too big or too small for a double, it is 0.
double Val(std::string_view text);
// Val without its fraction, held within the range of int.
int ValInt(std::string_view text);

// Blanks are bytes 32 and no others.
std::string_view LTrim(std::string_view text);
std::string_view RTrim(std::string_view text);
std::string_view Trim(std::string_view text);

char UCase(char byte);
char LCase(char byte);
std::string UCase(std::string_view text);
std::string LCase(std::string_view text);

// All pieces between separators, the empty ones too: one more than there are separators. An empty
// text has no pieces; with an empty separator the whole text is the one piece.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// Takes the text up to the delimiter from `work`, which keeps what stands behind the delimiter.
// Without one it takes all. Splits without allocating.
std::string_view ExtractToCharacter(char delimiter, std::string_view& work);

// A number from 0 up in decimal digits, with leading zeros to make `width` of them at least.
std::string Digits(unsigned number, std::size_t width);

}  // namespace core
