#include "platform/qt/qt_end_signals.h"

#include <gtest/gtest.h>

#include <csignal>

#include "platform/qt/pump.h"

namespace {

TEST(QtEndSignals, EachSignalToEndBecomesACallFromTheEventLoop) {
  int ends = 0;
  const platform::qt::QtEndSignals endSignals([&ends] { ++ends; });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    const int before = ends;
    ASSERT_EQ(std::raise(signal), 0);
    EXPECT_EQ(ends, before);
    EXPECT_TRUE(PumpUntil([&] { return ends == before + 1; }));
  }
}

TEST(QtEndSignals, BehindThemASignalHasItsUsualEffect) {
  {
    const platform::qt::QtEndSignals endSignals([] {});
  }
  EXPECT_EXIT(static_cast<void>(std::raise(SIGTERM)), testing::KilledBySignal(SIGTERM), "");
}

}  // namespace
