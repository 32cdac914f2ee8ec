#include "session/node_address.h"

#include <algorithm>

#include "core/text.h"

namespace session {
namespace {

constexpr std::string_view kVendorNode = "MOLVA-1";

// Four parts, each of digits alone.
bool IsDotted(std::string_view address) {
  const auto parts = core::Split(address, ".");
  const auto numeric = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  return parts.size() == 4 && std::all_of(parts.begin(), parts.end(), numeric);
}

}  // namespace

NodeAddress::NodeAddress(core::Settings& settings, Needs needs)
    : settings_(settings), needs_(std::move(needs)) {}

void NodeAddress::EnsureNode() {
  const bool vendorHostUnknown = settings_.NodeCall == kVendorNode && settings_.NodeHost.empty();
  if (core::Len(settings_.NodeCall) >= 2 && !vendorHostUnknown) return;
  const DefaultNode node = needs_.defaultNode();
  settings_.NodeCall = node.call;
  settings_.NodeHost = node.host;
  settings_.NodePort = node.port;
  needs_.delayedWriteCfg();
}

std::string NodeAddress::ChooseHost() {
  if (core::StartsWith(settings_.NodeCall, "MOLVA") && !settings_.MolvaNumberedAddress.empty())
    settings_.NodeNumberedAddress = settings_.MolvaNumberedAddress;
  const bool numbered = !TryHostName && IsDotted(settings_.NodeNumberedAddress);
  TryHostName = !TryHostName;
  return numbered ? settings_.NodeNumberedAddress : settings_.NodeHost;
}

void NodeAddress::Learn(const std::string& call, const std::string& address) {
  const bool vendor = call == kVendorNode;
  if (vendor) settings_.MolvaNumberedAddress = address;
  const bool known = vendor || call == settings_.NodeCall;
  settings_.NodeNumberedAddress = known ? address : "";
  if (known) TryHostName = false;
}

}  // namespace session
