#include "session/line_buffer.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

using session::LineBuffer;
using session::RepairEscapes;
using testing::ElementsAre;
using testing::IsEmpty;
using Prompts = session::LineBuffer::Prompts;

namespace {

class LineBufferTest : public testing::Test {
 protected:
  // The lines that the bytes make, each where it is complete.
  std::vector<std::string> Lines(std::string_view bytes, Prompts prompts = Prompts::None) {
    std::vector<std::string> lines;
    for (const char byte : bytes) Take(buffer.Put(static_cast<std::uint8_t>(byte), prompts), lines);
    return lines;
  }

  void Take(LineBuffer::Event event, std::vector<std::string>& lines) {
    if (event == LineBuffer::Event::Nul) ++nuls;
    if (event == LineBuffer::Event::PasswordPrompt) ++passwordPrompts;
    if (event == LineBuffer::Event::None || event == LineBuffer::Event::Nul) return;
    std::string line;
    buffer.Take(line);
    lines.push_back(line);
  }

  LineBuffer buffer;
  int nuls = 0;
  int passwordPrompts = 0;
};

TEST_F(LineBufferTest, NulInsideALineDoesNotSplitItAndIsNoPartOfIt) {
  using namespace std::string_literals;
  EXPECT_THAT(Lines("DX \0de\0\0 K1\r"s), ElementsAre("DX de K1"));
  EXPECT_EQ(nuls, 3);
}

TEST_F(LineBufferTest, LineFeedAloneEndsNoLine) {
  EXPECT_THAT(Lines("one\ntwo\n\n"), IsEmpty());
  EXPECT_THAT(Lines("\r"), ElementsAre("onetwo"));
}

TEST_F(LineBufferTest, CarriageReturnAloneEndsALine) {
  EXPECT_THAT(Lines("one\rtwo\r"), ElementsAre("one", "two"));
}

TEST_F(LineBufferTest, CarriageReturnAndLineFeedMakeOneLineInEitherOrder) {
  EXPECT_THAT(Lines("one\r\ntwo\n\rthree\r\n"), ElementsAre("one", "two", "three"));
}

TEST_F(LineBufferTest, BytesOneToTenAreIgnored) {
  for (int byte = 1; byte <= 10; ++byte) {
    const std::string line = std::string("a") + static_cast<char>(byte) + "b\r";
    EXPECT_THAT(Lines(line), ElementsAre("ab")) << "byte " << byte;
  }
}

TEST_F(LineBufferTest, EveryByteAboveTenButCarriageReturnIsPartOfTheLine) {
  for (int byte = 11; byte <= 255; ++byte) {
    if (byte == '\r') continue;
    const std::string text = std::string("a") + static_cast<char>(byte) + "b";
    EXPECT_THAT(Lines(text + "\r"), ElementsAre(text)) << "byte " << byte;
  }
}

TEST_F(LineBufferTest, EmptyLinesAreLines) { EXPECT_THAT(Lines("\r\n\r\n"), ElementsAre("", "")); }

TEST_F(LineBufferTest, BlanksThatEndALineAreGoneAndThoseThatBeginItStay) {
  EXPECT_THAT(Lines("  two words   \r   \r"), ElementsAre("  two words", ""));
}

TEST_F(LineBufferTest, BlanksBeforeAnEndOfIgnoredBytesAreGoneToo) {
  EXPECT_THAT(Lines("spot  \a\a\r\n"), ElementsAre("spot"));
}

TEST_F(LineBufferTest, NothingOfALongLineIsLeftInTheNextShortOne) {
  EXPECT_THAT(Lines("a rather long line\rshort\r"), ElementsAre("a rather long line", "short"));
}

TEST_F(LineBufferTest, ClearBeginsANewLine) {
  Lines("half a li");
  buffer.Clear();
  EXPECT_THAT(Lines("whole\r"), ElementsAre("whole"));
}

TEST_F(LineBufferTest, WordsLikeAPromptButOtherwiseAreNone) {
  for (const std::string_view text :
       {"Login:", "LOGIN:", "login", "my login:", "Password", "PASSWORD", "passwor", "the password",
        "your callsign:", "Your Callsign:", "callsign :", "Callsign:", "please enter your call:",
        "Please enter your name:", "Enter new Password:", "enter new password:",
        "re-enter password:", "Enter password:"}) {
    EXPECT_THAT(Lines(text, Prompts::Login), IsEmpty()) << text;
    buffer.Clear();
  }
  EXPECT_EQ(passwordPrompts, 0);
}

TEST_F(LineBufferTest, PromptIsALineTheMomentItsLastCharacterArrives) {
  for (const std::string prompt : {"login:", "Your callsign:", "Callsign :",
                                   "Please enter your call:", "Please enter your callsign:"}) {
    EXPECT_THAT(Lines(prompt.substr(0, prompt.size() - 1), Prompts::Login), IsEmpty()) << prompt;
    EXPECT_THAT(Lines(prompt.substr(prompt.size() - 1), Prompts::Login), testing::SizeIs(1))
        << prompt;
  }
  EXPECT_EQ(passwordPrompts, 0);
}

TEST_F(LineBufferTest, PasswordPromptsAskForThePasswordToo) {
  for (const std::string prompt : {"password", "Enter new password:", "Re-enter password:"}) {
    passwordPrompts = 0;
    EXPECT_THAT(Lines(prompt, Prompts::Login), ElementsAre(prompt));
    EXPECT_EQ(passwordPrompts, 1) << prompt;
  }
}

TEST_F(LineBufferTest, LeadingBlanksDoNotHideAPrompt) {
  EXPECT_THAT(Lines(" password: \r", Prompts::Login),
              ElementsAre(testing::HasSubstr("password"), ":"));
  EXPECT_EQ(passwordPrompts, 1);
  EXPECT_THAT(Lines("   login:", Prompts::Login), ElementsAre(testing::HasSubstr("login:")));
}

TEST_F(LineBufferTest, WhatStandsBehindAPromptBeginsANewLine) {
  EXPECT_THAT(Lines("login: \r\nhello\r\n", Prompts::Login), ElementsAre("login:", "", "hello"));
}

TEST_F(LineBufferTest, IgnoredBytesInsideAPromptDoNotHideIt) {
  using namespace std::string_literals;
  EXPECT_THAT(Lines("\a\nlo\0gin\a:"s, Prompts::Login), ElementsAre("login:"));
}

TEST_F(LineBufferTest, PromptsMeanNothingWhereNoneAreAwaited) {
  EXPECT_THAT(Lines("login: password\r", Prompts::None), ElementsAre("login: password"));
  EXPECT_EQ(passwordPrompts, 0);
}

TEST_F(LineBufferTest, TncPromptIsKnownAnywhereInTheLineAndInAnyCase) {
  EXPECT_THAT(Lines("cmd", Prompts::Tnc), IsEmpty());
  EXPECT_THAT(Lines(":", Prompts::Tnc), ElementsAre("cmd:"));
  EXPECT_THAT(Lines("xxxCmd:", Prompts::Tnc), ElementsAre("xxxCmd:"));
  EXPECT_THAT(Lines("login:", Prompts::Tnc), IsEmpty());
}

TEST(GiveBackGiant, EmptiesAGiantTextAndGivesItsMemoryBack) {
  std::string giant;
  giant.resize(20'000'000, 'x');
  session::GiveBackGiant(giant);
  EXPECT_TRUE(giant.empty());
  EXPECT_LT(giant.capacity(), 1'000'000u);
}

struct Repair {
  std::string_view before;
  std::string_view after;
  int count;
};

void ExpectRepairs(const std::vector<Repair>& repairs) {
  for (const auto& [before, after, count] : repairs) {
    std::string line(before);
    EXPECT_EQ(RepairEscapes(line), count) << before;
    EXPECT_EQ(line, after) << before;
  }
}

TEST(RepairEscapes, TextThatIsNotHexadecimalEndsTheRepair) {
  ExpectRepairs({{"%zz", "%zz", 0},
                 {"%", "%", 0},
                 {"100%", "100%", 0},
                 {"%4", "%4", 0},
                 {"50% off", "50% off", 0},
                 {"%g1", "%g1", 0},
                 {"%%41", "%%41", 0},
                 {"%-1", "%-1", 0},
                 {"%+5", "%+5", 0},
                 {"%0x", "%0x", 0},
                 {"%zz%41", "%zz%41", 0}});
}

TEST(RepairEscapes, ControlCharacterEndsTheRepairAndStaysInTheLine) {
  ExpectRepairs({{"%0A", "%0A", 0},
                 {"%00", "%00", 0},
                 {"%0D%41", "%0D%41", 0},
                 {"%1F", "%1F", 0},
                 {"%41%0A%42", "A%0A%42", 1}});
}

TEST(RepairEscapes, EachIsReplacedByTheByteItNames) {
  ExpectRepairs({{"100%25 ok", "100% ok", 1},
                 {"a%20b", "a b", 1},
                 {"%41%42%43", "ABC", 3},
                 {"%7e%7E", "~~", 2},
                 {"caf%E9", "caf\xE9", 1},
                 {"%c3%A9", "\xC3\xA9", 2},
                 {"%FF", "\xFF", 1},
                 {"", "", 0},
                 {"plain", "plain", 0}});
}

TEST(RepairEscapes, PercentSignThatComesOutOfOneIsLookedAtAgain) {
  ExpectRepairs({{"%2541", "A", 2}, {"%252525", "%", 3}, {"%25%41", "%%41", 1}});
}

TEST(RepairEscapes, HundredsOfThousandsInOneLineAreNoTrouble) {
  std::string line;
  for (int i = 0; i < 500'000; ++i) line += "%41";
  EXPECT_EQ(RepairEscapes(line), 500'000);
  EXPECT_EQ(line, std::string(500'000, 'A'));
  line = "%";
  for (int i = 0; i < 500'000; ++i) line += "25";
  line += "41";
  EXPECT_EQ(RepairEscapes(line), 500'001);
  EXPECT_EQ(line, "A");
}

}  // namespace
