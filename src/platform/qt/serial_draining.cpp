#include "platform/qt/serial_draining.h"

#include <utility>

namespace platform::qt {
namespace {

using namespace std::chrono_literals;

// A goodbye of two hundred bytes has gone by then, even at 1200 baud.
constexpr auto kPatience = 2000ms;
// Some drivers can't drop what they hold; without flow control it leaves by itself.
constexpr auto kPatienceWithTheRest = 3000ms;

}  // namespace

SerialDraining::Step SerialDraining::Next(std::int64_t outstanding, Milliseconds since) {
  if (outstanding == 0 || since >= kPatienceWithTheRest) return Step::Close;
  if (since < kPatience || std::exchange(discarded_, true)) return Step::Wait;
  return Step::Discard;
}

}  // namespace platform::qt
