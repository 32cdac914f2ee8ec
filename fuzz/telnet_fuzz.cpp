#include <string>

#include "bytes.h"
#include "platform/telnet.h"

// A stream gives the same text and the same replies however it is split.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes = TextOf(data, size);
  std::string text, replies;
  platform::TelnetFilter whole;
  whole.Filter(bytes, text, replies);
  std::string textOfParts, repliesOfParts;
  platform::TelnetFilter parts;
  for (const char byte : bytes) parts.Filter({&byte, 1}, textOfParts, repliesOfParts);
  Expect(text == textOfParts && replies == repliesOfParts && text.size() <= size);
  return 0;
}
