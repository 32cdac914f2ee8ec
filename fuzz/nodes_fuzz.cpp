#include "bytes.h"
#include "platform/sim/sim_files.h"
#include "session/node_directory.h"

namespace {

// What a directory has written is what the next one holds.
void ReadNodes(const std::string& path, std::string_view text) {
  platform::sim::SimFiles files;
  const core::Endpoints endpoints;
  files.content[path] = text;
  session::NodeDirectory read(files, endpoints, "/home");
  read.Load();
  Expect(read.InOrder().size() == read.NodeCount());
  read.Write();
  session::NodeDirectory next(files, endpoints, "/home");
  next.Load();
  Expect(next.NodeCalls() == read.NodeCalls() && next.NodeHosts() == read.NodeHosts());
  Expect(next.NodePorts() == read.NodePorts() && next.NodeInfo() == read.NodeInfo());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = TextOf(data, size);
  ReadNodes("/home/dxclusters.dat", text);
  ReadNodes("/home/cluster.dat", text);
  return 0;
}
