#include "session/local_feed.h"

#include <exception>
#include <string>
#include <utility>

#include "session/feed_options.h"

namespace session {
namespace {

constexpr std::string_view kMark = "-#: ";
constexpr std::string_view kNoMark = ":   ";

std::string WithoutSkimmerMarks(std::string_view line) {
  std::string plain(line);
  for (auto at = plain.find(kMark); at != std::string::npos; at = plain.find(kMark, at))
    plain.replace(at, kMark.size(), kNoMark);
  return plain;
}

}  // namespace

LocalFeed::LocalFeed(const core::Settings& settings, SessionState& state, LoggerServer& loggers,
                     Needs needs)
    : settings_(settings), state_(state), loggers_(loggers), needs_(std::move(needs)) {}

void LocalFeed::RawLine(std::string_view line) {
  try {
    loggers_.LoggerRaw(line);
  } catch (const std::exception& fault) {
    needs_.onFault("LoggerRaw", fault.what());
  }
}

void LocalFeed::SendLocal(std::string_view line) {
  try {
    Pass(line);
  } catch (const std::exception& fault) {
    needs_.onFault("SendLocal", fault.what());
  }
}

void LocalFeed::Pass(std::string_view line) {
  const bool toLoggers = loggers_.LoggersConnected() > 0;
  if (!toLoggers && !settings_.LocalNetwork) return;
  if (state_.LastSendWasUser && IsAnswer(line)) return;
  std::string plain;
  const bool marked = line.find(kMark) != std::string_view::npos;
  if (marked && !Feeds(settings_, FeedOption::SkimmerMark))
    line = plain = WithoutSkimmerMarks(line);
  if (toLoggers) loggers_.SendLogger(line);
  if (settings_.LocalNetwork) needs_.sendRS232(line);
}

// The prompt ends what the node has to say to the text.
bool LocalFeed::IsAnswer(std::string_view line) {
  const bool keepAlive = line.starts_with("Tx ") || line.starts_with("Rx ");
  if (state_.IsArCluster() && keepAlive) return true;
  if (!state_.RcvdPrompt(line)) return false;
  state_.LastSendWasUser = false;
  return true;
}

}  // namespace session
