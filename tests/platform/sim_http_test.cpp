#include "platform/sim/sim_http.h"

#include <gtest/gtest.h>

#include "platform/sim/world.h"
#include "platform/tasks.h"

using namespace std::chrono_literals;
using platform::Http;

namespace {

class SimHttpTest : public testing::Test {
 protected:
  static platform::Task<> Note(Http& http, Http::Request request,
                               std::optional<Http::Answer>& into) {
    auto get = http.Get(std::move(request));
    into = co_await std::move(get);
  }
  void Begin(Http::Request request) {
    tasks.Start("fetch", Note(world.http, std::move(request), answer));
  }
  Http::Answer Get(Http::Request request) {
    Begin(std::move(request));
    EXPECT_TRUE(world.RunUntil([this] { return answer.has_value(); }));
    return answer.value_or(Http::Answer{});
  }

  platform::sim::World world;
  std::optional<Http::Answer> answer;
  platform::Tasks tasks{world.scheduler,
                        [](std::string_view, std::string_view what) { FAIL() << what; }};
};

TEST_F(SimHttpTest, PageComesInPiecesWithItsProgress) {
  world.http.pages["http://host/a"] = {.bytes = std::string(2500, 'x')};
  std::vector<std::uint64_t> received;
  const auto got = Get({.url = "http://host/a",
                        .mostBytes = 2500,
                        .progress = [&](std::uint64_t now, std::uint64_t whole) {
                          received.push_back(now);
                          EXPECT_EQ(whole, 2500U);
                        }});
  EXPECT_EQ(got.bytes.size(), 2500U);
  EXPECT_EQ(received, (std::vector<std::uint64_t>{1000, 2000, 2500}));
  EXPECT_EQ(world.http.asked, std::vector<std::string>{"http://host/a"});
  EXPECT_EQ(world.http.open, 0);
}

TEST_F(SimHttpTest, PageBreaksOffWhereTheTestSays) {
  world.http.pages["http://host/a"] = {.bytes = std::string(2500, 'x'), .brokenAfter = 1200};
  const auto got = Get({.url = "http://host/a", .mostBytes = 2500});
  EXPECT_EQ(got.fault, Http::Fault::BrokenOff);
  EXPECT_EQ(got.bytes, "");
}

TEST_F(SimHttpTest, PageThatIsTooLargeIsNone) {
  world.http.pages["http://host/a"] = {.bytes = std::string(2500, 'x')};
  EXPECT_EQ(Get({.url = "http://host/a", .mostBytes = 2499}).fault, Http::Fault::TooLarge);
}

TEST_F(SimHttpTest, CancelledTransferIsOpenNoMore) {
  world.http.pages["http://host/a"] = {.bytes = {}, .silent = true};
  Begin({.url = "http://host/a", .mostBytes = 1});
  world.Run(1s);
  EXPECT_EQ(world.http.open, 1);
  tasks.CancelAll();
  EXPECT_EQ(world.http.open, 0);
}

}  // namespace
