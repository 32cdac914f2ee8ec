#include "core/call.h"

#include "core/text.h"

namespace core {
namespace {

std::string_view UpTo(std::string_view text, char delimiter) {
  return ExtractToCharacter(delimiter, text);
}

// The first of those that are longest. This takes "/MM", "/P" and their like off as well.
std::string_view LongestPiece(std::string_view text) {
  std::string_view longest;
  while (!text.empty()) {
    const std::string_view piece = ExtractToCharacter('/', text);
    if (piece.size() > longest.size()) longest = piece;
  }
  return longest;
}

}  // namespace

std::string Nossid(std::string_view call) {
  if (EndsWith(call, "-#")) call.remove_suffix(2);
  if (StartsWith(call, "(")) call = Mid(call, 2, Len(call) - 2);
  call = UpTo(call, '-');
  call = UpTo(call, ' ');
  call = UpTo(call, '*');
  call = LongestPiece(call);
  if (StartsWith(call, "+")) call.remove_prefix(1);
  return UCase(call);
}

std::string BaseCall(std::string_view myCall) {
  return std::string(ExtractToCharacter('-', myCall));
}

}  // namespace core
