#include "platform/qt/qt_clock.h"

#include <gtest/gtest.h>

#include <QByteArray>
#include <ctime>

namespace platform::qt {
namespace {

using namespace std::chrono_literals;

// The time zone of the process, put back at the end.
class Zone {
 public:
  explicit Zone(const QByteArray& zone)
      : wasSet_(qEnvironmentVariableIsSet("TZ")), before_(qgetenv("TZ")) {
    qputenv("TZ", zone);
    tzset();
  }
  ~Zone() {
    if (wasSet_)
      qputenv("TZ", before_);
    else
      qunsetenv("TZ");
    tzset();
  }
  Zone(const Zone&) = delete;
  Zone& operator=(const Zone&) = delete;

 private:
  bool wasSet_;
  QByteArray before_;
};

TEST(QtClockTest, TheTimeIsTheSystemsInWholeMilliseconds) {
  const auto before = std::chrono::system_clock::now();
  const UtcTime told = QtClock().UtcNow();
  const auto after = std::chrono::system_clock::now();
  EXPECT_GT(told, before - 1ms);
  EXPECT_LE(told, after);
}

TEST(QtClockTest, EastOfGreenwichIsPositive) {
  const Zone india("XST-5:30");
  EXPECT_EQ(QtClock().LocalOffset(), 330min);
}

TEST(QtClockTest, WestOfGreenwichIsNegative) {
  const Zone newfoundland("XST3:30");
  EXPECT_EQ(QtClock().LocalOffset(), -210min);
}

TEST(QtClockTest, DaylightSavingCounts) {
  const Zone allYear("XST-1XDT,0/0,J365/25");
  EXPECT_EQ(QtClock().LocalOffset(), 120min);
}

}  // namespace
}  // namespace platform::qt
