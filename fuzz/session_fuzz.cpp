#include <chrono>
#include <string>

#include "bytes.h"
#include "platform/sim/world.h"
#include "program/program.h"
#include "session/fake_node.h"

using namespace std::chrono_literals;

namespace {

constexpr const char* kFolder = "/home/op/molva";

// In the bytes: time passes, or the node hangs up and is called again.
constexpr char kPause = '\x01';
constexpr char kHangUp = '\x02';

void Play(platform::sim::World& world, FakeNode& node, std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\x01\x02"), bytes.size());
    if (node.HasCaller()) node.Say(bytes.substr(0, end));
    if (end < bytes.size() && bytes[end] == kPause) world.Run(300ms);
    if (end < bytes.size() && bytes[end] == kHangUp) {
      node.Close();
      world.Run(70s);
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

}  // namespace

// A node may send anything: the program goes on, its views stay within their bounds, and the next
// session is served.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  platform::sim::World world;
  world.files.folders.insert(kFolder);
  world.files.content[std::string(kFolder) + "/molva.cfg"] =
      "\"My Call\",\"K1TST-2\"\r\n\"My Name\",\"ANNA\"\r\n\"My QTH\",\"Ann Arbor, MI\"\r\n"
      "\"Gmt Offset\",\"Ok\"\r\n\"AutoStart\",-1\r\n\"AutoFilter\",-1\r\n";
  FakeNode node(world, "127.0.0.1", 7373);
  program::Program program(world.platform(), kFolder, {.quit = [] {}, .seed = 1});
  program.Start();
  world.Run(2s);
  Expect(node.HasCaller());
  Play(world, node, TextOf(data, size));
  world.Run(3s);
  Expect(program.session.outgoing.Text2.Characters() <= 20'000 + size + 1'000);
  Expect(!program.Loading);
  return 0;
}
