#include "session/links.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/sim/sim_browser.h"
#include "session/session_fixture.h"

using session::AddressOf;
using session::FindHTML;
using session::HeadingStart;
using session::Link;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

TEST(FindHTMLTest, ALinkBeginsWithHttpAndGoesUpToTheNextBlank) {
  EXPECT_THAT(FindHTML(" See http://www.example.org/a for more"),
              ElementsAre(Link{6, "http://www.example.org/a"}));
}

TEST(FindHTMLTest, ALinkGoesUpToTheEndOfTheLineWithoutABlank) {
  EXPECT_THAT(FindHTML("http://example.org"), ElementsAre(Link{1, "http://example.org"}));
}

TEST(FindHTMLTest, ASecureAddressIsALinkToo) {
  EXPECT_THAT(FindHTML("x:https://example.org/ y"), ElementsAre(Link{3, "https://example.org/"}));
}

TEST(FindHTMLTest, WwwIsALinkBehindABlankAlone) {
  EXPECT_THAT(FindHTML(" www.example.org"), ElementsAre(Link{2, "www.example.org"}));
  EXPECT_THAT(FindHTML("www.example.org"), IsEmpty());
  EXPECT_THAT(FindHTML("(www.example.org"), IsEmpty());
  EXPECT_THAT(FindHTML(" wwwexample.org"), IsEmpty());
}

TEST(FindHTMLTest, AllLinksOfALineStandInTheirOrder) {
  EXPECT_THAT(FindHTML(" www.a.org http://b.org  https://c.org www.d.org"),
              ElementsAre(Link{2, "www.a.org"}, Link{12, "http://b.org"}, Link{26, "https://c.org"},
                          Link{40, "www.d.org"}));
}

TEST(FindHTMLTest, AnAddressInAnAddressIsPartOfIt) {
  EXPECT_THAT(FindHTML("http://a.org/?to=http://b.org"),
              ElementsAre(Link{1, "http://a.org/?to=http://b.org"}));
}

TEST(FindHTMLTest, CaseMatters) { EXPECT_THAT(FindHTML("HTTP://A.ORG WWW.A.ORG"), IsEmpty()); }

TEST(FindHTMLTest, ABeginningWithNothingBehindIsALinkOfItsOwn) {
  EXPECT_THAT(FindHTML("http:/"), ElementsAre(Link{1, "http:/"}));
  EXPECT_THAT(FindHTML("http:/ www."), ElementsAre(Link{1, "http:/"}, Link{8, "www."}));
}

TEST(FindHTMLTest, AControlCharacterEndsALink) {
  EXPECT_THAT(FindHTML("http://a.org\tx"), ElementsAre(Link{1, "http://a.org"}));
  EXPECT_THAT(FindHTML(std::string_view("http://a.org\0x", 14)),
              ElementsAre(Link{1, "http://a.org"}));
  EXPECT_THAT(FindHTML("http://a.org\x1b[31m"), ElementsAre(Link{1, "http://a.org"}));
  EXPECT_THAT(FindHTML("http://a.org\x7f"), ElementsAre(Link{1, "http://a.org"}));
}

TEST(FindHTMLTest, NothingElseIsALink) {
  for (const char* line : {"", " ", "http:", "javascript:alert(1)", "ftp://a.org", "file:///etc",
                           "mailto:a@b.org", "<a href=x>y</a>", "htttp:/", "h"})
    EXPECT_THAT(FindHTML(line), IsEmpty()) << line;
}

TEST(FindHTMLTest, AnEndlessLineOfLinksIsReadInOneGo) {
  std::string line;
  for (int i = 0; i < 200'000; ++i) line += " www.";
  EXPECT_THAT(FindHTML(line), SizeIs(200'000));
}

TEST(AddressOfTest, IsTheTextItself) {
  EXPECT_EQ(AddressOf("http://example.org:8080/a?b=c#d"), "http://example.org:8080/a?b=c#d");
  EXPECT_EQ(AddressOf("https://example.org"), "https://example.org");
}

TEST(AddressOfTest, AHostAloneIsAskedByHttp) {
  EXPECT_EQ(AddressOf("www.example.org/a"), "http://www.example.org/a");
}

TEST(AddressOfTest, PunctuationBehindIsNoPartOfIt) {
  for (const char* link :
       {"http://a.org/b.", "http://a.org/b,", "http://a.org/b)", "http://a.org/b>",
        "http://a.org/b\"", "http://a.org/b).", "http://a.org/b]:", "http://a.org/b!"})
    EXPECT_EQ(AddressOf(link), "http://a.org/b") << link;
  EXPECT_EQ(AddressOf("http://a.org/b_(c)"), "http://a.org/b_(c)") << "a pair is one";
}

TEST(AddressOfTest, WithoutAHostThereIsNone) {
  for (const char* link : {"http:/", "http://", "https:/", "http:///a", "http:/a.org", "http:/..",
                           "www.", "", "http://?a", "http://:80"})
    EXPECT_EQ(AddressOf(link), "") << link;
}

TEST(AddressOfTest, NothingButTheWebIsOpened) {
  for (const char* link : {"javascript:alert(1)", "file:///etc/passwd", "ftp://a.org",
                           "httpx://a.org", "http:/javascript:alert(1)"})
    EXPECT_EQ(AddressOf(link), "") << link;
}

TEST(AddressOfTest, WhatIsShownIsWhatIsOpened) {
  const std::string turnsRound = {'\xe2', '\x80', '\xae'};
  EXPECT_EQ(AddressOf("http://a.org/" + turnsRound + "gro"), "");
  EXPECT_EQ(AddressOf("http://\xd0\xb0.org/"), "") << "a letter that looks like another";
  EXPECT_EQ(AddressOf("http://bank.org@a.org/"), "") << "the host is not what it seems to be";
  EXPECT_EQ(AddressOf("http://bank.org\\@a.org/"), "");
}

TEST(HeadingStartTest, IsBehindItsMark) {
  EXPECT_EQ(HeadingStart(" *.  News"), 6);
  EXPECT_EQ(HeadingStart("**  *.  News *.  of today"), 9) << "the first one";
  EXPECT_EQ(HeadingStart(" *. News"), 0);
  EXPECT_EQ(HeadingStart(" *.  "), 0) << "there is nothing to stand out";
  EXPECT_EQ(HeadingStart(""), 0);
}

class LinksTest : public testing::Test {
 protected:
  std::vector<Link> Of(std::size_t line) const {
    const auto all = links.Of(line);
    return {all.begin(), all.end()};
  }

  core::TextPage page;
  platform::sim::SimBrowser browser;
  std::vector<std::string> notOpened;
  session::Links links{page, browser,
                       [this](const std::string& link) { notOpened.push_back(link); }};
};

TEST_F(LinksTest, AreThoseOfTheLinesAsTheyCome) {
  page.Append(" none");
  page.Append(" www.a.org");
  EXPECT_THAT(Of(0), IsEmpty());
  EXPECT_THAT(Of(1), ElementsAre(Link{2, "www.a.org"}));
  EXPECT_THAT(Of(2), IsEmpty()) << "no line";
}

TEST_F(LinksTest, GoWithTheirLines) {
  for (int i = 0; i < 3000; ++i) {
    page.Append(" www." + std::to_string(i) + ".org");
    const auto& lines = page.Lines();
    ASSERT_THAT(Of(0), ElementsAre(Link{2, lines.front().substr(1)}));
    ASSERT_THAT(Of(lines.size() - 1), ElementsAre(Link{2, lines.back().substr(1)}));
    ASSERT_THAT(Of(lines.size()), IsEmpty());
  }
  page.Clear();
  EXPECT_THAT(Of(0), IsEmpty());
}

TEST_F(LinksTest, AreForgottenWhileTheTextStays) {
  int told = 0;
  const auto telling = links.Cleared.Add([&told] { ++told; });
  page.Append(" www.a.org");
  links.Clear();
  EXPECT_EQ(told, 1);
  EXPECT_THAT(Of(0), IsEmpty());
  page.Append(" www.b.org");
  EXPECT_THAT(Of(1), ElementsAre(Link{2, "www.b.org"}));
}

TEST_F(LinksTest, OpenInTheBrowser) {
  links.Open({2, "www.a.org."});
  EXPECT_THAT(browser.opened, ElementsAre("http://www.a.org"));
  EXPECT_THAT(notOpened, IsEmpty());
}

TEST_F(LinksTest, TheUserIsToldOfALinkThatNothingOpens) {
  links.Open({1, "http:/"});
  browser.isThere = false;
  links.Open({1, "http://a.org"});
  EXPECT_THAT(browser.opened, IsEmpty());
  EXPECT_THAT(notOpened, ElementsAre("http:/", "http://a.org"));
}

class LoginLinksTest : public SessionFixture {
 protected:
  std::size_t Count() const {
    std::size_t count = 0;
    for (std::size_t line = 0; line < program.loginText.rtbLoginMsg.Lines().size(); ++line)
      count += program.loginLinks.Of(line).size();
    return count;
  }
};

TEST_F(LoginLinksTest, AreCollectedWithTheLoginTextUpToThePrompt) {
  Connect();
  Receive("www.at-the-beginning.org");
  Receive("See http://example.org for more");
  EXPECT_EQ(Count(), 2U) << "each line of the page has a blank in front";
  program.state.LoginTextDone = true;
  Receive("http://later.org");
  EXPECT_EQ(Count(), 2U);
}

TEST_F(LoginLinksTest, EndWithTheSessionAndBeginAnewWithTheNext) {
  Connect();
  Receive("See http://example.org");
  NodeCloses();
  EXPECT_FALSE(program.loginText.rtbLoginMsg.Lines().empty());
  EXPECT_EQ(Count(), 0U);
  LetRetry();
  Receive("See http://example.org");
  EXPECT_EQ(Count(), 1U);
}

TEST_F(LoginLinksTest, WhatCannotBeOpenedIsSaidInTheMessageForm) {
  program.loginLinks.Open({1, "http:/"});
  EXPECT_THAT(messages, ElementsAre(testing::Pair("Nothing opens this link", "http:/")));
}

}  // namespace
