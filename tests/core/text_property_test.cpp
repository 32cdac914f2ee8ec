#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "core/quoted.h"
#include "core/text.h"

// Every text function against one that walks the text byte by byte, on random bytes and arguments.
namespace core {
namespace {

constexpr unsigned kFirstTextSeed = 20260105;
constexpr unsigned kSeeds = 20'000;

// Random texts and numbers, likelier where things happen: at the ends, among few different bytes.
class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}

  std::size_t UpTo(std::size_t most) {
    return std::uniform_int_distribution<std::size_t>{0, most}(engine_);
  }

  Position Number() {
    constexpr std::array<Position, 6> kEnds = {0,
                                               -1,
                                               std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max(),
                                               std::numeric_limits<Position>::min(),
                                               std::numeric_limits<Position>::max()};
    const std::size_t pick = UpTo(24);
    return pick < kEnds.size() ? kEnds[pick] : static_cast<Position>(pick - kEnds.size());
  }

  char Byte() { return static_cast<char>(UpTo(255)); }
  char ByteOf(std::string_view bytes) { return bytes[UpTo(bytes.size() - 1)]; }

  std::string Bytes(std::size_t most) {
    std::string text(UpTo(most), '\0');
    const bool any = UpTo(3) == 0;
    for (char& byte : text) byte = any ? Byte() : ByteOf(" aAbBzZ@[`{,\"\r\n\xE4\xC4");
    return text;
  }

  std::string Numeral() {
    std::string text(UpTo(12), '\0');
    for (char& byte : text) byte = ByteOf(" +-.0123456789eE0123456789x");
    return text;
  }

 private:
  std::mt19937 engine_;
};

// A text in a block of memory of just its size, so that the sanitizers see any byte read beside it.
class Exact {
 public:
  explicit Exact(const std::string& text) : size_(text.size()), bytes_(new char[text.size()]) {
    std::copy(text.begin(), text.end(), bytes_.get());
  }
  std::string_view View() const { return {bytes_.get(), size_}; }

 private:
  std::size_t size_;
  std::unique_ptr<char[]> bytes_;
};

std::string NaiveMid(const std::string& text, Position start, Position count) {
  std::string piece;
  if (start < 1) return piece;
  for (Position at = 1; at <= Len(text); ++at)
    if (at >= start && at - start < count) piece += text[static_cast<std::size_t>(at - 1)];
  return piece;
}

std::string NaiveLeft(const std::string& text, Position count) { return NaiveMid(text, 1, count); }

std::string NaiveRight(const std::string& text, Position count) {
  const std::string backwards(text.rbegin(), text.rend());
  const std::string piece = NaiveLeft(backwards, count);
  return {piece.rbegin(), piece.rend()};
}

std::string NaiveCase(std::string text, int (*convert)(int)) {
  for (char& byte : text)
    if (static_cast<unsigned char>(byte) < 128) byte = static_cast<char>(convert(byte));
  return text;
}

Position NaiveInStr(Position start, const std::string& text, const std::string& what) {
  if (start < 1) return 0;
  for (Position at = start; at <= Len(text); ++at)
    if (NaiveMid(text, at, Len(what)) == what) return at;
  return 0;
}

std::string NaiveLTrim(std::string text) {
  while (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

std::string NaiveRTrim(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::vector<std::string> NaiveSplit(const std::string& text, const std::string& separator) {
  if (text.empty()) return {};
  if (separator.empty()) return {text};
  std::vector<std::string> pieces(1);
  for (std::size_t at = 0; at < text.size();) {
    if (text.compare(at, separator.size(), separator) == 0) {
      pieces.emplace_back();
      at += separator.size();
    } else {
      pieces.back() += text[at++];
    }
  }
  return pieces;
}

std::vector<std::string> NaiveLines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\n') line += text[at];
    if (text[at] != '\n' && at + 1 < text.size()) continue;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
    line.clear();
  }
  return lines;
}

// The number's bytes by its grammar; what they are worth is left to the C library.
double NaiveVal(const std::string& text) {
  const std::string rest = NaiveLTrim(text) + '\0';
  std::size_t at = 0;
  const auto skipDigits = [&] {
    const std::size_t before = at;
    while (rest[at] >= '0' && rest[at] <= '9') ++at;
    return at - before;
  };
  if (rest[at] == '+' || rest[at] == '-') ++at;
  std::size_t digits = skipDigits();
  if (rest[at] == '.') {
    ++at;
    digits += skipDigits();
  }
  if (digits == 0) return 0;
  std::size_t end = at;
  if (rest[at] == 'e' || rest[at] == 'E') {
    ++at;
    if (rest[at] == '+' || rest[at] == '-') ++at;
    if (skipDigits() > 0) end = at;
  }
  const double number = std::strtod(rest.substr(0, end).c_str(), nullptr);
  return std::isfinite(number) ? number : 0;
}

std::vector<std::string> Owned(const std::vector<std::string_view>& views) {
  return {views.begin(), views.end()};
}

template <class Check>
void ForEverySeed(Check check) {
  for (unsigned seed = kFirstTextSeed; seed < kFirstTextSeed + kSeeds; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Chance chance(seed);
    check(chance);
    if (testing::Test::HasFailure()) return;
  }
}

TEST(TextOfRandomBytes, IsCutAsByTheNaiveRule) {
  ForEverySeed([](Chance& chance) {
    const std::string text = chance.Bytes(16);
    const Exact exact(text);
    const Position start = chance.Number();
    const Position count = chance.Number();
    EXPECT_EQ(Mid(exact.View(), start, count), NaiveMid(text, start, count));
    EXPECT_EQ(Mid(exact.View(), start), NaiveMid(text, start, Len(text)));
    EXPECT_EQ(Left(exact.View(), count), NaiveLeft(text, count));
    EXPECT_EQ(Right(exact.View(), count), NaiveRight(text, count));
    EXPECT_EQ(LTrim(exact.View()), NaiveLTrim(text));
    EXPECT_EQ(RTrim(exact.View()), NaiveRTrim(text));
    EXPECT_EQ(Trim(exact.View()), NaiveLTrim(NaiveRTrim(text)));
  });
}

TEST(TextOfRandomBytes, IsSearchedAsByTheNaiveRule) {
  ForEverySeed([](Chance& chance) {
    const std::string text = chance.Bytes(16);
    const std::string what = chance.Bytes(3);
    const std::string textUpper = NaiveCase(text, std::toupper);
    const std::string whatUpper = NaiveCase(what, std::toupper);
    const Exact exactText(text);
    const Exact exactWhat(what);
    const Position start = chance.Number();
    EXPECT_EQ(InStr(start, exactText.View(), exactWhat.View()), NaiveInStr(start, text, what));
    EXPECT_EQ(InStr(exactText.View(), exactWhat.View()), NaiveInStr(1, text, what));
    EXPECT_EQ(InStrIgnoringCase(start, exactText.View(), exactWhat.View()),
              NaiveInStr(start, textUpper, whatUpper));
    EXPECT_EQ(InStrIgnoringCase(exactText.View(), exactWhat.View()),
              NaiveInStr(1, textUpper, whatUpper));
  });
}

TEST(TextOfRandomBytes, IsComparedAsByTheNaiveRule) {
  ForEverySeed([](Chance& chance) {
    const std::string text = chance.Bytes(4);
    const std::string what = chance.Bytes(2);
    const std::string textUpper = NaiveCase(text, std::toupper);
    const std::string whatUpper = NaiveCase(what, std::toupper);
    const Exact exactText(text);
    const Exact exactWhat(what);
    EXPECT_EQ(StartsWith(exactText.View(), exactWhat.View()), NaiveLeft(text, Len(what)) == what);
    EXPECT_EQ(EndsWith(exactText.View(), exactWhat.View()), NaiveRight(text, Len(what)) == what);
    EXPECT_EQ(StartsWithIgnoringCase(exactText.View(), exactWhat.View()),
              NaiveLeft(textUpper, Len(what)) == whatUpper);
    EXPECT_EQ(SameIgnoringCase(exactText.View(), exactWhat.View()), textUpper == whatUpper);
    EXPECT_EQ(UCase(exactText.View()), textUpper);
    EXPECT_EQ(LCase(exactText.View()), NaiveCase(text, std::tolower));
  });
}

TEST(TextOfRandomBytes, IsSplitAsByTheNaiveRule) {
  ForEverySeed([](Chance& chance) {
    const std::string text = chance.Bytes(16);
    const std::string separator = chance.Bytes(2);
    const Exact exact(text);
    EXPECT_EQ(Owned(Split(exact.View(), separator)), NaiveSplit(text, separator));
    EXPECT_EQ(Owned(SplitLines(exact.View())), NaiveLines(text));
    std::string_view work = exact.View();
    std::vector<std::string> pieces;
    while (!work.empty()) pieces.emplace_back(ExtractToCharacter(',', work));
    if (EndsWith(text, ",")) pieces.emplace_back();
    EXPECT_EQ(pieces, NaiveSplit(text, ","));
  });
}

TEST(TextOfRandomBytes, IsReadAsANumberAsByTheNaiveRule) {
  ForEverySeed([](Chance& chance) {
    const std::string text = chance.Numeral() + chance.Bytes(1);
    EXPECT_EQ(Val(Exact(text).View()), NaiveVal(text)) << testing::PrintToString(text);
  });
}

TEST(RecordOfRandomBytes, IsOneLineOfItsTwoFields) {
  ForEverySeed([](Chance& chance) {
    std::string key = chance.Bytes(8);
    std::erase(key, ',');
    const std::string value = chance.Bytes(12);
    const std::string record = Record({QuotedField(key), QuotedField(value)});
    const auto lines = SplitLines(record);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(std::count(record.begin(), record.end(), '"'), 4);
    const RecordPair read = SplitRecord(lines.front());
    EXPECT_EQ(QuotedField(read.first), QuotedField(key));
    EXPECT_EQ(QuotedField(read.second), QuotedField(value));
  });
}

}  // namespace
}  // namespace core
