#include <gmock/gmock.h>

#include "session_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PagePromptTest : public SessionFixture {
 protected:
  void LogInTo(const std::string& greeting) {
    Connect();
    ReceiveBytes("login: \r\n");
    Receive(greeting);
    Sent();
    log.entries.clear();
  }
};

TEST_F(PagePromptTest, DxSpiderIsToldToGoOnAndToStopNoMore) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("Press Enter to continue, A to abort (20 lines) >");
  ExpectSent({" ", "SET/PAGE 9999"});
}

TEST_F(PagePromptTest, DxNetIsToldSoInBothItsLanguages) {
  LogInTo("the software is DxNet.");
  Receive("<CR> Continue, <A> Abort");
  ExpectSent({" ", "SET/PAGE 0"});
  Receive("<CR> Continuer, <A> Arreter >");
  ExpectSent({" ", "SET/PAGE 0"});
}

TEST_F(PagePromptTest, PromptIsClaimedAndNotForwarded) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("Press Enter to continue, A to abort >");
  EXPECT_THAT(log.Of("Second"), IsEmpty());
  EXPECT_THAT(log.Of("forwarded"), IsEmpty());
}

TEST_F(PagePromptTest, EachPageIsTurned) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("Press Enter to continue, A to abort >");
  Receive("Press Enter to continue, A to abort >");
  ExpectSent({" ", "SET/PAGE 9999", " ", "SET/PAGE 9999"});
}

TEST_F(PagePromptTest, WordsCountAtTheBeginningOfALineOnly) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("somebody wrote: Press Enter to continue, please");
  ExpectNothingSent();
  EXPECT_THAT(log.Of("Second"), ElementsAre("somebody wrote: Press Enter to continue, please"));
}

TEST_F(PagePromptTest, PromptsOfOtherSoftwareMeanNothing) {
  for (const char* greeting : {"Welcome to the N0NODE AR-Cluster node", "N0NODE running CLX 5.20",
                               "N0NODE on WinCluster", "hello"}) {
    Station station;
    station.Connect();
    station.ReceiveBytes("login: \r\n");
    station.Receive(greeting);
    station.Sent();
    station.Receive("Press Enter to continue, A to abort");
    station.Receive("<CR> Continue, <A> Abort");
    EXPECT_THAT(station.Sent(), IsEmpty()) << greeting;
  }
}

TEST_F(PagePromptTest, EachSoftwareHasItsOwn) {
  LogInTo("running DXSpider V1.57 build 441");
  Receive("<CR> Continue, <A> Abort");
  ExpectNothingSent();
}

}  // namespace
