#include "session/node_directory.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "session/built_in_nodes.h"

namespace session {
namespace {

std::string_view HostOf(const BuiltInNode& node, const core::Endpoints& endpoints) {
  return node.host.empty() ? std::string_view(endpoints.molva1) : node.host;
}

void Erase(std::vector<std::string>& texts, std::size_t place) {
  texts.erase(texts.begin() + static_cast<std::ptrdiff_t>(place));
}

}  // namespace

NodeDirectory::NodeDirectory(platform::Files& files, const core::Endpoints& endpoints,
                             std::string folder)
    : files_(files), endpoints_(endpoints), folder_(std::move(folder)) {}

void NodeDirectory::Load() {
  GetMolvaClusters();
  ReadNodeData();
}

void NodeDirectory::GetMolvaClusters() {
  for (auto* texts : {&NodeCalls_, &NodeHosts_, &NodePorts_, &NodeInfo_}) texts->clear();
  places_.clear();
  for (const BuiltInNode& node : kBuiltInNodes)
    Set({.call = node.call, .host = HostOf(node, endpoints_), .port = node.port, .info = {}}, true);
  Sort();
  Changed.Tell();
}

void NodeDirectory::ReadNodeData() {
  NodeVersion = NewReadNodeData();
  Sort();
  Changed.Tell();
}

std::string NodeDirectory::NewReadNodeData() {
  for (const NodeListFormat* format : {&kNewNodeFormat, &kOldNodeFormat}) {
    const auto content = files_.Read(Path(*format));
    if (content.bytes.empty()) continue;
    NewNodeFormat = format->info;
    const std::string text = WithoutQuotes(content.bytes);
    const NodeList list = ParseNodeList(text, *format);
    for (const NodeList::Row& row : list.rows) Set(row, format->info);
    return std::string(list.version);
  }
  NewNodeFormat = true;
  return {};
}

std::optional<std::size_t> NodeDirectory::Find(std::string_view call) const {
  const auto found = places_.find(call);
  if (found == places_.end()) return std::nullopt;
  return found->second;
}

std::size_t NodeDirectory::Put(std::string_view call, std::string_view host,
                               std::string_view port) {
  const std::size_t place = Set({.call = call, .host = host, .port = port, .info = {}}, false);
  Sort();
  Changed.Tell();
  return place;
}

void NodeDirectory::Remove(std::size_t place) {
  for (auto* texts : {&NodeCalls_, &NodeHosts_, &NodePorts_, &NodeInfo_}) Erase(*texts, place);
  places_.clear();
  for (std::size_t i = 0; i < NodeCalls_.size(); ++i) places_.emplace(NodeCalls_[i], i);
  Sort();
  Changed.Tell();
}

platform::Files::Fault NodeDirectory::Write() {
  std::string text;
  if (!NodeVersion.empty()) AppendNodeVersion(text, NodeVersion, Format());
  for (std::size_t i = 0; i < NodeCount(); ++i)
    AppendNodeLine(text, {NodeCalls_[i], NodeHosts_[i], NodePorts_[i], NodeInfo_[i]}, Format());
  return files_.Replace(NodeFile(), text);
}

DefaultNode NodeDirectory::Default() const {
  const auto known =
      std::find_if(kBuiltInNodes.begin(), kBuiltInNodes.end(),
                   [this](const BuiltInNode& each) { return !HostOf(each, endpoints_).empty(); });
  return {std::string(known->call), std::string(HostOf(*known, endpoints_)),
          std::string(known->port)};
}

// The text of a list without any stays.
std::size_t NodeDirectory::Set(const NodeList::Row& row, bool withInfo) {
  const auto found = places_.find(row.call);
  const bool isNew = found == places_.end();
  const std::size_t place = isNew ? NodeCalls_.size() : found->second;
  if (isNew) {
    places_.emplace(row.call, place);
    NodeCalls_.emplace_back(row.call);
    NodeHosts_.emplace_back();
    NodePorts_.emplace_back();
    NodeInfo_.emplace_back();
  }
  NodeHosts_[place] = row.host;
  NodePorts_[place] = row.port;
  if (withInfo) NodeInfo_[place] = row.info;
  return place;
}

void NodeDirectory::Sort() {
  order_.resize(NodeCalls_.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  std::sort(order_.begin(), order_.end(),
            [this](std::size_t a, std::size_t b) { return NodeCalls_[a] < NodeCalls_[b]; });
}

bool IsBuiltInNode(std::string_view call) {
  return std::any_of(kBuiltInNodes.begin(), kBuiltInNodes.end(),
                     [call](const BuiltInNode& each) { return each.call == call; });
}

}  // namespace session
