#include "platform/qt/qt_name_lookup.h"

#include <gmock/gmock.h>

#include "platform/qt/pump.h"
#include "platform/qt/qt_scheduler.h"
#include "platform/tasks.h"

namespace platform::qt {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

struct QtNameLookupTest : testing::Test {
  QtScheduler scheduler;
  QtNameLookup names;
  std::optional<std::vector<std::string>> addresses;
  Tasks tasks{scheduler, [](std::string_view, std::string_view what) { FAIL() << what; }};

  static Task<> Note(NameLookup& names, std::string host,
                     std::optional<std::vector<std::string>>& into) {
    auto found = names.Resolve(host);
    into = co_await std::move(found);
  }
  void Resolve(const std::string& host) { tasks.Start("lookup", Note(names, host, addresses)); }
  bool PumpUntilAnswered() {
    return PumpUntil([&] { return addresses.has_value(); });
  }
};

TEST_F(QtNameLookupTest, ANameBecomesItsAddresses) {
  Resolve("localhost");
  EXPECT_FALSE(addresses.has_value());
  ASSERT_TRUE(PumpUntilAnswered());
  EXPECT_THAT(*addresses, Contains("127.0.0.1"));
}

TEST_F(QtNameLookupTest, AnAddressStandsForItselfAtOnce) {
  Resolve("192.0.2.7");
  ASSERT_TRUE(addresses.has_value());
  EXPECT_THAT(*addresses, ElementsAre("192.0.2.7"));
}

TEST_F(QtNameLookupTest, ANameThatCannotBeHasNone) {
  Resolve("no..host");
  ASSERT_TRUE(PumpUntilAnswered());
  EXPECT_THAT(*addresses, IsEmpty());
}

TEST_F(QtNameLookupTest, ACancelledQuestionIsNotAnswered) {
  Resolve("localhost");
  tasks.CancelAll();
  EXPECT_TRUE(tasks.Idle());
  // The answer to a later question comes after the one that was not wanted.
  std::optional<std::vector<std::string>> later;
  tasks.Start("later", Note(names, "localhost", later));
  ASSERT_TRUE(PumpUntil([&] { return later.has_value(); }));
  PumpTurns(scheduler);
  EXPECT_FALSE(addresses.has_value());
}

}  // namespace
}  // namespace platform::qt
