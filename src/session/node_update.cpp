#include "session/node_update.h"

#include <utility>

#include "core/file_fault.h"
#include "core/text.h"

namespace session {
namespace {

using platform::Http;
using Fault = platform::Http::Fault;

constexpr const char* kUnknown = "Unknown";
constexpr const char* kUpdate = "Update";
constexpr const char* kStop = "Stop";
constexpr const char* kNoList = "what came is no list of nodes";
constexpr const char* kNoEndpoint =
    "No server of lists is known: \"Node List\" in endpoints.cfg names one.";

struct FaultWords {
  Fault fault;
  const char* says;
};
constexpr std::array kFaultWords = {
    FaultWords{Fault::BadAddress, "\"Node List\" in endpoints.cfg is no address of the web"},
    FaultWords{Fault::HostNotFound, "the server was not found; is there a network?"},
    FaultWords{Fault::Refused, "the server does not answer; try again later"},
    FaultWords{Fault::TimedOut, "the server has fallen silent; try again later"},
    FaultWords{Fault::NotSecure, "the server can't show who it is"},
    FaultWords{Fault::TooManyRedirects, "the server leads round in circles"},
    FaultWords{Fault::Status, "the server has no list; try again later"},
    FaultWords{Fault::TooLarge, "what came is too large for a list of nodes"},
    FaultWords{Fault::BrokenOff, "the connection broke off; try again"},
    FaultWords{Fault::Other, "the connection failed; try again later"},
};

std::string WordsOf(Fault fault) {
  for (const FaultWords& each : kFaultWords)
    if (each.fault == fault) return each.says;
  return {};
}

// An answer that told no length may have broken off anywhere.
bool IsWhole(const Http::Answer& answer) {
  return answer.lengthTold || core::EndsWith(answer.bytes, "\n");
}

bool HasNodes(std::string_view bytes, const NodeListFormat& format) {
  const std::string text = WithoutQuotes(bytes);
  return !ParseNodeList(text, format).rows.empty();
}

bool NamesScheme(std::string_view address) {
  return core::StartsWithIgnoringCase(address, "http://") ||
         core::StartsWithIgnoringCase(address, "https://");
}

}  // namespace

NodeUpdate::NodeUpdate(platform::Scheduler& scheduler, Http& http, platform::Files& files,
                       NodeDirectory& directory, const core::Endpoints& endpoints,
                       core::Settings& settings, core::ErrorLog& errorLog, Needs needs)
    : http_(http),
      files_(files),
      directory_(directory),
      endpoints_(endpoints),
      settings_(settings),
      errorLog_(errorLog),
      needs_(std::move(needs)),
      tasks_(scheduler, needs_.onFault) {
  lblVersion[0].Caption.Set("Version Installed");
  lblVersion[1].Caption.Set("Version Avaliable");
  lblWarning[0].Caption.Set(
      "If you choose to update, any custom cluster data you have added will be lost.");
  lblWarning[1].Caption.Set("You will then need to re-enter this data.");
  Check1.Caption.Set("Don't show me this again.");
  watching_.push_back(cmdNode.Click.Add([this] { Press(); }));
  watching_.push_back(Check1.Click.Add([this] {
    settings_.DontShowClusterUpdate = Check1.Value.Get();
    needs_.delayedWriteCfg();
  }));
  watching_.push_back(
      Fetching.Observe([this](bool fetching) { cmdNode.Caption.Set(fetching ? kStop : kUpdate); }));
  ShowVersions(kUnknown);
}

void NodeUpdate::Load() {
  Check1.Value.Set(settings_.DontShowClusterUpdate);
  lblInstalled.Caption.Set(directory_.NodeVersion.empty() ? kUnknown : directory_.NodeVersion);
  const bool known = !endpoints_.nodeList.empty();
  cmdNode.Enabled.Set(known);
  cmdNode.ToolTip.Set(known ? "" : kNoEndpoint);
  for (core::Label& warning : lblWarning) warning.Visible.Set(known);
  Check1.Visible.Set(known);
  if (!Fetching.Get()) lblResult.Caption.Set({});
}

void NodeUpdate::OfferNewer() { ShowVersions("Newer"); }

// The heading says that there is a new list only if that is known.
void NodeUpdate::ShowVersions(std::string_view available) {
  fraUpdate.Caption.Set(available == kUnknown ? "Node List" : "New Node List Available");
  lblInstalled.Caption.Set(directory_.NodeVersion.empty() ? kUnknown : directory_.NodeVersion);
  lblAvailable.Caption.Set(std::string(available));
}

void NodeUpdate::Press() {
  if (Fetching.Get()) {
    Stop();
    lblResult.Caption.Set("Stopped. The old list stays.");
    return;
  }
  lblResult.ForeColour.Set(core::kThemeColour);
  lblResult.Caption.Set("Waiting for the server");
  tasks_.Start("cmdNode_Click", Fetch());
}

void NodeUpdate::Stop() {
  tasks_.CancelAll();
  ProgressBar1.Set(0);
}

std::string NodeUpdate::Address() const {
  std::string_view server = endpoints_.nodeList;
  while (core::EndsWith(server, "/")) server.remove_suffix(1);
  const std::string scheme = NamesScheme(server) ? "" : "https://";
  return scheme + std::string(server) + std::string(directory_.Format().path);
}

platform::Task<> NodeUpdate::Fetch() {
  Fetching.Set(true);
  ProgressBar1.Set(0);
  const platform::Registration ended([this] { Fetching.Set(false); });
  Http::Request request{.url = Address(), .mostBytes = kLongestList};
  request.progress = [this](std::uint64_t received, std::uint64_t expected) {
    ShowProgress(received, expected);
  };
  auto get = http_.Get(std::move(request));
  const Http::Answer answer = co_await std::move(get);
  Take(answer);
}

void NodeUpdate::ShowProgress(std::uint64_t received, std::uint64_t expected) {
  if (expected > 0) ProgressBar1.Set(static_cast<int>(received * 100 / expected));
  lblResult.Caption.Set("Received: " + std::to_string((received + 1023) / 1024) + " kB");
}

void NodeUpdate::Take(const Http::Answer& answer) {
  if (answer.fault != Fault::None)
    return Fail(WordsOf(answer.fault), answer.status, answer.description);
  if (!IsWhole(answer)) return Fail(WordsOf(Fault::BrokenOff), 0, "The last line is not whole");
  if (!HasNodes(answer.bytes, directory_.Format())) return Fail(kNoList, 0, kNoList);
  const auto fault = files_.Replace(directory_.NodeFile(), answer.bytes);
  if (fault != platform::Files::Fault::None) {
    const auto [number, words] = core::NameOf(fault);
    return Fail("the list can't be saved (" + std::string(words) + ")", number, words);
  }
  directory_.Load();
  ProgressBar1.Set(100);
  ShowVersions(kUnknown);
  lblResult.ForeColour.Set(core::kGreen);
  lblResult.Caption.Set("*** Update OK ***");
}

void NodeUpdate::Fail(const std::string& why, int number, std::string_view description) {
  errorLog_.ReportError("cmdNode_Click", number, description);
  ProgressBar1.Set(0);
  lblResult.ForeColour.Set(core::kRed);
  lblResult.Caption.Set("Not updated: " + why + ". The old list stays.");
}

}  // namespace session
