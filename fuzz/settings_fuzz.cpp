#include "bytes.h"
#include "core/settings.h"

// Whatever a configuration holds: what has been written and read once stays the same for good. (The
// first time some values give way to their defaults.)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const core::Settings first = core::ParseSettings(TextOf(data, size));
  const core::Settings second = core::ParseSettings(core::FormatSettings(first, ""));
  const core::Settings third = core::ParseSettings(core::FormatSettings(second, ""));
  Expect(second == third);
  return 0;
}
