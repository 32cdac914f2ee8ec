#include "session/local_network.h"

#include <algorithm>
#include <utility>

#include "core/text.h"

namespace session {
namespace {

// What a command grows beyond this is lost.
constexpr std::size_t kLongestCommand = std::size_t{64} * 1024;

constexpr std::string_view kRunaway = "Runaway problem!. Please contact MOLVA via email.";

}  // namespace

LocalNetwork::LocalNetwork(platform::SerialPorts& ports, core::Settings& settings, Timers& timers,
                           Needs needs)
    : MSComm2(ports.MakePort()), settings_(settings), timers_(timers), needs_(std::move(needs)) {
  MSComm2->lost = [this](const std::string& why) {
    NetworkLine.clear();
    Trouble.Set(why);
    needs_.onFault("MSComm2", why);
  };
}

bool LocalNetwork::OpenComm2() {
  if (MSComm2->PortOpen()) return true;
  MSComm2->Settings = {.baud = settings_.NetworkBaud,
                       .parity = 'N',
                       .dataBits = 8,
                       .stopBits = "1",
                       .flow = platform::FlowControl::None};
  MSComm2->CommPort = needs_.portPath(settings_.NetworkPort);
  const std::string why = MSComm2->Open();
  Trouble.Set(why);
  if (!why.empty()) {
    needs_.onFault("OpenComm2", why);
    return false;
  }
  timers_.Enable(TimerId::Tnc);
  return true;
}

void LocalNetwork::CloseComm2() {
  MSComm2->Close();
  NetworkLine.clear();
  Trouble.Set({});
}

void LocalNetwork::ReadNetwork() {
  const std::string input = MSComm2->Input();
  if (input.empty()) return;
  if (settings_.Echo) MSComm2->Output(input);
  const std::size_t lineEnd = std::min(input.find_first_of("\r\n"), input.size());
  const std::size_t room = kLongestCommand - NetworkLine.size();
  NetworkLine.append(input, 0, std::min(lineEnd, room));
  for (std::size_t left = input.size() - lineEnd; left > 0; --left) TakeLine();
}

void LocalNetwork::TakeLine() {
  const std::string line = std::exchange(NetworkLine, {});
  if (!needs_.claimedHere(line)) needs_.sendAsIs(line);
}

void LocalNetwork::RunawayNotice(std::string_view line) {
  const bool complaint = core::StartsWith(line, "Runa") && core::InStr(line, kRunaway) > 0;
  if (!settings_.LocalNetwork || !complaint) return;
  settings_.LocalNetwork = false;
  settings_.NetworkPort = 0;
  CloseComm2();
  needs_.switchedOff();
}

void LocalNetwork::SendRS232(std::string_view text) { MSComm2->Output(std::string(text) + "\r\n"); }

}  // namespace session
