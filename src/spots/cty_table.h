#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "spots/bearing.h"

namespace spots {

// The countries of "cty.dat": their names, continents and headings by prefix. Only its lines that
// end in a colon are read, one a country; the lists of further prefixes between them are not:
//   Isle of Man:              14:  27:  EU:   54.20:     4.53:     0.0:  GD:
// Names and prefixes are held in capitals. Empty until a file has been read.
class CtyTable {
 public:
  static constexpr std::size_t kMostRows = 500;
  // Of a longer text only so much counts.
  static constexpr std::size_t kMostBytes = std::size_t{8} << 20;
  static constexpr std::size_t kContinents = 6;
  // NA, EU, AF, AS, SA, OC; "AN" stands with SA. All are as long as the longest one, filled up with
  // empty texts.
  using Columns = std::array<std::vector<std::string>, kContinents>;

  struct Row {
    std::string Prefix;
    core::Coordinates position;
    Heading heading;
  };

  // Takes the file's text in place of what was read before. A text of fewer than 300 line ends
  // leaves the table empty. Where the file lacks Marion Island, the table gains it and the result
  // is what the file should hold from now on: the country lines alone. Total, and bounded; lines
  // may end in CR LF or LF.
  std::optional<std::string> Read(std::string_view text);
  void Clear();
  // The headings follow it. There is none at first.
  void SetHome(const Home& home);

  // Puts the heading of that prefix into `current`, or empties it. Case doesn't count in a prefix.
  bool FindHeading(std::string_view prefix, Heading& current) const;
  // Empty if there is none.
  std::string_view CountryName(std::string_view prefix) const;
  bool HasPrefix(std::string_view word) const { return Find(word) != nullptr; }

  // In the order of the file.
  const std::vector<std::string>& CtyHeaderLines() const { return headerLines_; }
  const std::vector<Row>& CtyHeadings() const { return rows_; }
  int CtyCount() const { return static_cast<int>(rows_.size()) - 1; }  // -1: no file has been read

  const Columns& CtyByContinent() const { return prefixes_; }
  const Columns& CtyNames() const { return names_; }
  // The last index of each column; -1: it has none.
  const std::array<int, kContinents>& ContinentLast() const { return continentLast_; }

 private:
  struct Known {
    std::size_t row = 0;
    std::string name;
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };

  void AddLine(std::string_view line);
  void EnterByContinent(std::string_view continent, std::string prefix, std::string name);
  void CutColumns();
  void IndexPrefixes();
  const Known* Find(std::string_view prefix) const;

  Home home_;
  std::vector<std::string> headerLines_;
  std::vector<Row> rows_;
  Columns prefixes_;
  Columns names_;
  std::array<int, kContinents> continentLast_ = {-1, -1, -1, -1, -1, -1};
  std::size_t lastColumn_ = 0;                                           // that took a country
  std::unordered_map<std::string, Known, Hash, std::equal_to<>> known_;  // by prefix
};

}  // namespace spots
