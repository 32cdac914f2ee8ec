#include "session/port_advice.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using session::PortAdvice;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

TEST(PortAdvice, NamesTheDeviceAndWhatToDoNext) {
  for (const char* why : {"busy", "no such device", "no permission", "the device has gone",
                          "a speed of 7 is not possible"}) {
    const std::string says = PortAdvice("/dev/ttyUSB0", why);
    EXPECT_THAT(says, StartsWith("/dev/ttyUSB0 ")) << why;
    EXPECT_THAT(says, EndsWith(".")) << why;
    EXPECT_GT(std::count(says.begin(), says.end(), '.'), 1) << says;
  }
}

TEST(PortAdvice, TellsABusyPortFromOneThatIsMissing) {
  EXPECT_EQ(PortAdvice("/dev/ttyS0", "busy"),
            "/dev/ttyS0 is in use by another program. Close that program, or choose another "
            "device.");
  EXPECT_EQ(PortAdvice("/dev/ttyS0", "no such device"),
            "/dev/ttyS0 is not there. Plug it in, or choose another device.");
}

TEST(PortAdvice, DeviceOfTheLocalNetworkThatHasGoneIsToBeAppliedAgain) {
  EXPECT_EQ(session::NetworkPortAdvice("/dev/ttyS0", "the device has gone"),
            "/dev/ttyS0 has gone. Plug it in again and press Apply under Connection, or choose "
            "another device.");
  EXPECT_EQ(session::NetworkPortAdvice("/dev/ttyS0", "busy"), PortAdvice("/dev/ttyS0", "busy"));
  EXPECT_EQ(session::NetworkPortAdvice("", "the device has gone"), PortAdvice("", "busy"));
}

TEST(PortAdvice, SaysTheReasonThatItDoesNotKnow) {
  EXPECT_THAT(PortAdvice("/dev/ttyS0", "4 data bits are not possible"),
              HasSubstr("4 data bits are not possible"));
}

TEST(PortAdvice, WithoutADeviceThereIsOneToChoose) {
  EXPECT_EQ(PortAdvice("", "no such device"), "No port is chosen. Choose one.");
}

}  // namespace
