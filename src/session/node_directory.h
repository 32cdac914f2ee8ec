#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/endpoints.h"
#include "core/observers.h"
#include "platform/files.h"
#include "session/node_address.h"
#include "session/node_list.h"

namespace session {

// The nodes that the operator can choose from: the built-in ones, and those of the file in the
// program's folder, "dxclusters.dat" or the older "cluster.dat". A call is there once.
class NodeDirectory {
 public:
  // All outlive it. The endpoints name the host of "MOLVA-1", or leave it empty.
  NodeDirectory(platform::Files& files, const core::Endpoints& endpoints, std::string folder);

  // The built-in nodes, and then those of the file.
  void Load();
  // Begins anew with the built-in nodes alone.
  void GetMolvaClusters();
  // Adds the nodes of the file, and takes its version.
  void ReadNodeData();
  // Adds them and gives the version: of "dxclusters.dat", or, if that gives no text, of
  // "cluster.dat". Without either the list stays as it is.
  std::string NewReadNodeData();

  std::size_t NodeCount() const { return NodeCalls_.size(); }
  // Each holds what belongs to the call at the same place, from 0 to NodeCount() - 1.
  const std::vector<std::string>& NodeCalls() const { return NodeCalls_; }
  const std::vector<std::string>& NodeHosts() const { return NodeHosts_; }
  const std::vector<std::string>& NodePorts() const { return NodePorts_; }
  const std::vector<std::string>& NodeInfo() const { return NodeInfo_; }
  // Those places in the order of the calls.
  const std::vector<std::size_t>& InOrder() const { return order_; }
  std::optional<std::size_t> Find(std::string_view call) const;

  // Gives the row of that call this host and port, or adds one. Gives its place.
  std::size_t Put(std::string_view call, std::string_view host, std::string_view port);
  // The row at that place goes, and those behind it move up.
  void Remove(std::size_t place);
  core::Observers<> Changed;

  // Writes the whole list into the file that was read, else into "dxclusters.dat".
  platform::Files::Fault Write();
  const NodeListFormat& Format() const { return NewNodeFormat ? kNewNodeFormat : kOldNodeFormat; }
  std::string NodeFile() const { return Path(Format()); }
  std::string NodeVersion;  // that the file gives itself; empty without one

  // The first built-in node that has a host.
  DefaultNode Default() const;

 private:
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::string Path(const NodeListFormat& format) const {
    return folder_ + "/" + std::string(format.file);
  }
  std::size_t Set(const NodeList::Row& row, bool withInfo);
  void Sort();

  platform::Files& files_;
  const core::Endpoints& endpoints_;
  const std::string folder_;
  bool NewNodeFormat = true;
  std::vector<std::string> NodeCalls_;
  std::vector<std::string> NodeHosts_;
  std::vector<std::string> NodePorts_;
  std::vector<std::string> NodeInfo_;
  std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> places_;
  std::vector<std::size_t> order_;
};

// Whether that call is built in: deleted, it comes back with the next start.
bool IsBuiltInNode(std::string_view call);

}  // namespace session
