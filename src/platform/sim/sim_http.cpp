#include "platform/sim/sim_http.h"

#include <algorithm>

namespace platform::sim {
namespace {

Http::Answer Failed(Http::Fault fault, const char* description, int status = 0) {
  return {.fault = fault,
          .status = status,
          .description = description,
          .lengthTold = false,
          .bytes = {}};
}

}  // namespace

Task<Http::Answer> SimHttp::Get(Request request) {
  asked.push_back(request.url);
  ++open;
  const Registration ended([this] { --open; });
  co_await Delay(latency);
  const auto found = pages.find(request.url);
  if (found == pages.end()) co_return Failed(Fault::HostNotFound, "Host not found");
  const Page page = found->second;
  if (page.silent) {
    co_await Delay(request.silence);
    co_return Failed(Fault::TimedOut, "Timed out");
  }
  if (page.fault != Fault::None) co_return Failed(page.fault, "Scripted fault");
  if (page.status != 200) co_return Failed(Fault::Status, "Server replied", page.status);
  Answer answer{.fault = Fault::None,
                .status = page.status,
                .description = {},
                .lengthTold = page.tellsLength,
                .bytes = {}};
  while (answer.bytes.size() < page.bytes.size()) {
    co_await Delay(latency);
    if (answer.bytes.size() >= page.brokenAfter) {
      // Without a length this is how answers end.
      if (!page.tellsLength) co_return answer;
      co_return Failed(Fault::BrokenOff, "Connection closed", page.status);
    }
    const std::size_t most = std::min(largestPiece, page.brokenAfter - answer.bytes.size());
    answer.bytes += page.bytes.substr(answer.bytes.size(), most);
    if (answer.bytes.size() > request.mostBytes)
      co_return Failed(Fault::TooLarge, "Too large", page.status);
    if (request.progress)
      request.progress(answer.bytes.size(), page.tellsLength ? page.bytes.size() : 0);
  }
  co_return answer;
}

}  // namespace platform::sim
