#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>
#include <ctime>

// Loaded into a program ahead of the system's library: with each SIGUSR1 a little more than a
// minute passes at once on the clock that its waiting goes by. The time of day stays.
namespace {

constexpr std::time_t kSkip = 66;  // seconds: the longest wait for the next try, and one to spare

volatile std::sig_atomic_t skips = 0;

void Skip(int) { skips = skips + 1; }

[[gnu::constructor]] void Listen() { std::signal(SIGUSR1, Skip); }

}  // namespace

extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
  const auto result = static_cast<int>(syscall(SYS_clock_gettime, clock, time));
  if (result == 0 && clock == CLOCK_MONOTONIC) time->tv_sec += skips * kSkip;
  return result;
}
