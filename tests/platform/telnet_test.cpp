#include "platform/telnet.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;
using platform::TelnetFilter;

namespace {

struct Outcome {
  std::string text;
  std::string replies;
  bool operator==(const Outcome&) const = default;
};

Outcome InOnePiece(const std::string& bytes) {
  TelnetFilter filter;
  Outcome outcome;
  filter.Filter(bytes, outcome.text, outcome.replies);
  return outcome;
}

Outcome SplitAt(const std::string& bytes, std::size_t at) {
  TelnetFilter filter;
  Outcome outcome;
  filter.Filter(std::string_view(bytes).substr(0, at), outcome.text, outcome.replies);
  filter.Filter(std::string_view(bytes).substr(at), outcome.text, outcome.replies);
  return outcome;
}

TEST(Telnet, TextPassesUnchangedWithEveryByteValueButIac) {
  std::string all;
  for (int byte = 0; byte < 255; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(InOnePiece(all).text, all);
}

TEST(Telnet, OffersAndRequestsAreRefusedEachOnce) {
  const Outcome outcome =
      InOnePiece("\xFF\xFB\x01login\xFF\xFD\x1F: \xFF\xFB\x01\xFF\xFD\x1F\xFF\xFD\x01"s);
  EXPECT_EQ(outcome.text, "login: ");
  EXPECT_EQ(outcome.replies, "\xFF\xFE\x01\xFF\xFC\x1F\xFF\xFC\x01"s);
}

TEST(Telnet, WontAndDontAreTakenOutWithoutAnAnswer) {
  EXPECT_EQ(InOnePiece("a\xFF\xFC\x01"
                       "b\xFF\xFE\x03"
                       "c"s),
            (Outcome{"abc", ""}));
}

TEST(Telnet, SubNegotiationIsTakenOutWithDoubledIacInside) {
  EXPECT_EQ(InOnePiece("a\xFF\xFA\x18\x01\xFF\xFFxyz\xFF\xF0"
                       "b"s),
            (Outcome{"ab", ""}));
}

TEST(Telnet, SubNegotiationThatNeverEndsIsGivenUpAfterAThousandBytes) {
  const std::string swallowed(TelnetFilter::kLongestSubnegotiation, 'x');
  EXPECT_EQ(InOnePiece("a\xFF\xFA"s + swallowed + "login:").text, "alogin:");
}

TEST(Telnet, BareFFThatStartsNoCommandStays) {
  EXPECT_EQ(InOnePiece("\xFF\x41 Ma\xFF\r\n"s), (Outcome{"\xFF\x41 Ma\xFF\r\n"s, ""}));
}

TEST(Telnet, DoubledIacIsOneByteOfText) { EXPECT_EQ(InOnePiece("a\xFF\xFF!").text, "a\xFF!"); }

TEST(Telnet, OtherCommandsAreTakenOut) { EXPECT_EQ(InOnePiece("a\xFF\xF1\xFF\xF9z").text, "az"); }

TEST(Telnet, EverySplitGivesTheSame) {
  const std::string stream =
      "\xFF\xFB\x03\xFF\xFB\x01Welcome\xFF\xFF\r\n\xFF\xFA\x18\x01\xFF\xF0login: \xFFz \xFF\xFD\x18\xFF\xF1!"s;
  const Outcome whole = InOnePiece(stream);
  for (std::size_t at = 0; at <= stream.size(); ++at) EXPECT_EQ(SplitAt(stream, at), whole) << at;
}

}  // namespace
