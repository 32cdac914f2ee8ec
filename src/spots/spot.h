#pragma once

#include <string>
#include <string_view>

namespace spots {

// A spot on its way from the node's line to the table. The parsers overwrite it, the steps behind
// them read and edit it. An empty text: not known.
struct Spot {
  double Freq = 0;  // kHz
  std::string DxCall;
  std::string SpotDate;  // "20-Nov-2026"
  std::string SpotTime;  // "2116", UTC
  int SpotHHMM = 0;      // the number that SpotTime reads as
  std::string Comment;
  std::string Spotter;  // of a Skimmer it ends in "#"
  std::string Node;     // where the spot entered the network
  std::string DxCty;
  std::string DxCq;  // zones are two characters, right-aligned
  std::string DxItu;
  std::string OrigItu;
  std::string OrigCq;
  std::string DxState;
  std::string OrigState;
  std::string OrigCty;
  std::string DxGrid;
  std::string OrigGrid;
  std::string OrigLocation;  // "lat/long", decimal degrees
  std::string SpotterIp;
  std::string LotwMark;       // one character; a blank: no member
  std::string RawLine;        // the extended line as it came
  bool ExpandedLine = false;  // the line carried more than the plain one does
  int SpotMinute = 0;         // day number times 1440 plus the minutes of the day
};

// Empties what is known beyond the plain line, behind each spot.
void ClearSpotExtras(Spot& spot);

// How calls are compared: byte for byte, case and all.
inline bool SameText(std::string_view a, std::string_view b) { return a == b; }

// Rounds as the decimal number that the value is written as: from 5 on away from zero.
// 0 to 9 decimals; a value that has no such number (infinite, none at all) stays as it is.
double RoundHalfUp(double value, int decimals);

}  // namespace spots
