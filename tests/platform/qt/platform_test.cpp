#include "platform/qt/qt_platform.h"

#include <gtest/gtest.h>

#include "platform/qt/pump.h"

namespace platform::qt {
namespace {

TEST(QtPlatformTest, ItsPartsShareOneScheduler) {
  QtPlatform owner;
  const platform::Platform outside = owner.Platform();
  const auto listener = outside.network.MakeListener();
  ASSERT_EQ(listener->Listen("127.0.0.1", 0), std::nullopt);
  const auto socket = outside.network.MakeSocket(TcpSocket::Protocol::Plain);
  bool connected = false;
  socket->connected = [&] { connected = true; };
  socket->RemoteHost = "127.0.0.1";
  socket->RemotePort = listener->LocalPort();
  socket->Connect();
  EXPECT_TRUE(PumpUntil([&] { return connected; }));
}

}  // namespace
}  // namespace platform::qt
