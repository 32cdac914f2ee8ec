#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>
#include <tuple>
#include <variant>

#include "core/quoted.h"
#include "core/settings.h"
#include "core/settings_table.h"
#include "core/text.h"
#include "thoroughness.h"

// The configuration against random settings, cuts and garbage.
namespace core {
namespace {

constexpr unsigned kFirstSettingsSeed = 20260105;

// Random values for every key of the table.
class RandomSettings {
 public:
  explicit RandomSettings(unsigned seed) : engine_(seed) {}

  Settings Make() {
    settings_ = {};
    settings_.WebPages.clear();
    for (const SettingRow& row : SettingRows()) {
      row_ = &row;
      if (row.written != Never && Below(4)) std::visit(*this, row.member);
    }
    if (settings_.LoggerPort < 7300) settings_.LoggerPort = 7300;
    if (settings_.WebPages.empty()) settings_.WebPages.push_back({"One", Text()});
    for (int* memory : {&settings_.SpotMemoryAll, &settings_.SpotMemorySingle})
      if (*memory <= 0) *memory = 200;
    settings_.MyLocation = Below(2) ? "42 17 N 83 44 W" : "no place";
    return settings_;
  }

  void operator()(std::string Settings::*member) {
    if (row_->form == Form::Words)
      settings_.*member = row_->words[Below(row_->words.size())];
    else
      settings_.*member = row_->form == Form::UpperCase ? UCase(Text()) : Text();
  }
  void operator()(int Settings::*member) { settings_.*member = Number(); }
  void operator()(double Settings::*member) { settings_.*member = Number() / 10.0; }
  void operator()(bool Settings::*member) { settings_.*member = Below(2) == 0; }
  void operator()(ColourFamily family) {
    for (int& colour : settings_.*family.member) colour = Number();
  }
  void operator()(FrequencyFamily family) {
    for (double& frequency : settings_.*family.member) frequency = Number() / 7.0;
  }
  void operator()(Column<TncStep>) {
    settings_.TncSteps.resize(Below(7));
    for (TncStep& step : settings_.TncSteps) step = {Text(), Text(), std::to_string(1 + Below(65))};
  }
  void operator()(Column<WebPage>) {
    settings_.WebPages.resize(Below(5));
    for (WebPage& page : settings_.WebPages) page = {Text(), Text()};
  }
  void operator()(Column<StartedProgram>) {
    settings_.ProgramStart.resize(Below(4));
    for (StartedProgram& program : settings_.ProgramStart) program = {Text()};
  }
  void operator()(WritingTime) {}
  void operator()(OldAction) {}

  std::size_t Below(std::size_t end) { return engine_() % end; }
  int Number() { return static_cast<int>(engine_()) >> Below(31); }

  // Of one line, without double quotes.
  std::string Text() {
    std::string text(Below(12), '\0');
    for (char& byte : text) do
        byte = Below(3) ? static_cast<char>(engine_()) : ", #"[Below(3)];
      while (byte == '"' || byte == '\r' || byte == '\n');
    return text;
  }

 private:
  std::mt19937 engine_;
  Settings settings_;
  const SettingRow* row_ = nullptr;
};

TEST(SettingsProperty, WhatIsWrittenReadsBackAsItWas) {
  for (unsigned seed = kFirstSettingsSeed; seed < kFirstSettingsSeed + 2'000 / kOneOf; ++seed) {
    RandomSettings random(seed);
    const Settings settings = random.Make();
    const std::string text = FormatSettings(settings, "now");
    const Settings read = ParseSettings(text);
    ASSERT_TRUE(FormatSettings(read, "now") == text) << "seed " << seed;
    ASSERT_TRUE(read == settings) << "seed " << seed << "\n" << text;
  }
}

// The keys of the whole lines, and that of a torn one behind them.
struct Cut {
  explicit Cut(std::string_view text) {
    const std::size_t end = text.rfind('\n') + 1;
    for (const std::string_view line : SplitLines(text.substr(0, end)))
      whole.insert(SplitRecord(line).first);
    torn = SplitRecord(text.substr(end)).first;
  }
  std::set<std::string> whole;
  std::string torn;
};

// Each value of `read` is that of `saved` if its key stands before the cut, else its default. Only
// that of the torn key may be anything.
class CutCheck {
 public:
  CutCheck(const Cut& cut, const Settings& saved, const Settings& read)
      : cut_(cut), saved_(saved), read_(read) {}

  void Check() {
    for (const SettingRow& row : SettingRows()) {
      if (row.written == Never) continue;
      key_ = row.key;
      std::visit(*this, row.member);
    }
  }

  template <class Value>
  void operator()(Value Settings::*member) {
    Expect(key_, read_.*member, saved_.*member, defaults_.*member);
  }
  template <class Values>
  void operator()(Family<Values> family) {
    for (unsigned i = 0; i < std::tuple_size_v<Values>; ++i)
      Expect(Digits(family.first + i, family.digits) + std::string(key_), (read_.*family.member)[i],
             (saved_.*family.member)[i], (defaults_.*family.member)[i]);
  }
  template <class Row>
  void operator()(Column<Row>) {}
  void operator()(WritingTime) {}
  void operator()(OldAction) {}

 private:
  template <class Value>
  void Expect(std::string_view key, const Value& read, const Value& saved, const Value& usual) {
    if (key == cut_.torn) return;
    EXPECT_EQ(read, cut_.whole.contains(std::string(key)) ? saved : usual) << key;
  }

  const Cut& cut_;
  const Settings& saved_;
  const Settings& read_;
  const Settings defaults_;
  std::string_view key_;
};

TEST(SettingsProperty, ACutAtAnyByteLosesNoKeyBeforeIt) {
  for (const unsigned seed : {kFirstSettingsSeed, kFirstSettingsSeed + 1}) {
    const Settings saved = RandomSettings(seed).Make();
    const std::string text = FormatSettings(saved, "now");
    for (std::size_t length = 0; length <= text.size(); length += kOneOf) {
      const std::string_view left = std::string_view(text).substr(0, length);
      CutCheck(Cut(left), saved, ParseSettings(left)).Check();
      ASSERT_FALSE(HasFailure()) << "seed " << seed << ", cut at " << length;
    }
  }
}

TEST(SettingsProperty, ACutAtAnyByteLosesNoRowBeforeIt) {
  Settings saved;
  saved.WebPages = {{"One", "http://one.example"}, {"Two", "a,b"}, {"Three", ""}};
  saved.TncSteps = {{"C N0NODE", "connected", "30"}, {"hello", "there", "5"}};
  const std::string text = FormatSettings(saved, "now");
  const auto rows = [&](std::string_view left, std::string_view lastKey) {
    std::size_t count = 0;
    while (left.find(lastKey) != left.npos) {
      left = left.substr(left.find(lastKey));
      if (left.find('\n') == left.npos) break;
      left = left.substr(left.find('\n'));
      ++count;
    }
    return count;
  };
  for (std::size_t length = 0; length <= text.size(); length += kOneOf) {
    const std::string_view left = std::string_view(text).substr(0, length);
    const Settings read = ParseSettings(left);
    for (std::size_t i = 0; i < rows(left, "\"Web Address\""); ++i)
      ASSERT_EQ(read.WebPages.at(i), saved.WebPages[i]) << length;
    for (std::size_t i = 0; i < rows(left, "\"Tnc TimeOut\""); ++i)
      ASSERT_EQ(read.TncSteps.at(i), saved.TncSteps[i]) << length;
  }
}

TEST(SettingsProperty, WhateverIsReadIsWrittenSoThatItReadsBack) {
  for (unsigned seed = kFirstSettingsSeed; seed < kFirstSettingsSeed + 2'000 / kOneOf; ++seed) {
    RandomSettings random(seed);
    std::string text = FormatSettings(random.Make(), "now");
    for (int damage = 0; damage < 50; ++damage) {
      const std::size_t at = random.Below(text.size());
      switch (random.Below(3)) {
        case 0:
          text[at] = static_cast<char>(random.Below(256));
          break;
        case 1:
          text.erase(at, random.Below(40));
          break;
        default:
          text.insert(at, std::string(random.Below(40), ",\"\r\n\0 "[random.Below(6)]));
      }
      if (text.empty()) text = "x";
    }
    Settings read = ParseSettings(text);
    read.LoggerPort = 7300;
    const std::string once = FormatSettings(read, "now");
    ASSERT_TRUE(FormatSettings(ParseSettings(once), "now") == once) << "seed " << seed;
  }
}

TEST(SettingsProperty, BinaryGarbageIsAllDefaults) {
  std::mt19937 engine(kFirstSettingsSeed);
  std::string garbage(1'000'000, '\0');
  for (char& byte : garbage) byte = static_cast<char>(engine());
  EXPECT_TRUE(ParseSettings(garbage) == Settings{});
  EXPECT_TRUE(ParseSettings(std::string(1'000'000, '\0')) == Settings{});
}

TEST(SettingsProperty, AHugeLineIsOneValue) {
  const std::string qth(5'000'000, 'x');
  EXPECT_EQ(ParseSettings("My QTH," + qth + "\r\nFormTop,7\r\n").MyQth, qth);
  EXPECT_EQ(ParseSettings("My QTH" + qth + "\r\nFormTop,7\r\n").FormTop, 7);
  EXPECT_EQ(ParseSettings("FormTop," + std::string(1'000'000, '9') + "\r\n").FormTop, 0);
}

TEST(SettingsProperty, AHundredThousandUnknownKeysHideNoKnownOne) {
  std::string text = "My Call,K1TST\r\n";
  for (int i = 0; i < 100'000; ++i) text += "\"Unknown " + std::to_string(i) + "\",\"x\"\r\n";
  text += "My QTH,Bonn\r\n";
  Settings expected;
  expected.MyCall = "K1TST";
  expected.MyQth = "Bonn";
  EXPECT_TRUE(ParseSettings(text) == expected);
}

}  // namespace
}  // namespace core
