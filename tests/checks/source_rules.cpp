#include "checks/source_rules.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <regex>

namespace checks {
namespace {

// The rank of each folder; one of the same rank isn't included. The folders below platform/ stand
// beside it: the simulated one is for tests alone.
const std::map<std::string, int, std::less<>> kRanks = {
    {"platform", 0}, {"core", 1},  {"session", 2}, {"spots", 3},  {"filters", 4}, {"content", 4},
    {"alerts", 4},   {"feeds", 4}, {"updates", 4}, {"lookup", 4}, {"program", 5}, {"ui", 6}};

std::string TopFolder(std::string_view path) {
  const auto slash = path.find('/');
  return std::string(slash == std::string_view::npos ? std::string_view() : path.substr(0, slash));
}

bool MayUseQt(std::string_view path) {
  return path.starts_with("ui/") || path.starts_with("platform/qt/") || path == "main.cpp";
}

bool MayInclude(const std::string& from, const std::string& to) {
  const auto fromRank = kRanks.find(from), toRank = kRanks.find(to);
  if (toRank == kRanks.end() || from.empty() || from == to) return true;
  return fromRank != kRanks.end() && toRank->second < fromRank->second;
}

void EachLine(std::string_view text, const std::function<void(int, const std::string&)>& visit) {
  int number = 0;
  while (!text.empty()) {
    const auto end = text.find('\n');
    visit(++number, std::string(text.substr(0, end)));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
}

std::string Place(std::string_view path, int line, const std::string& what) {
  return std::string(path) + ":" + std::to_string(line) + ": " + what;
}

bool IsComment(const std::string& line) {
  const auto start = line.find_first_not_of(" \t");
  return start != std::string::npos && line.compare(start, 2, "//") == 0;
}

Findings Matches(std::string_view path, std::string_view source, const std::regex& pattern) {
  Findings findings;
  EachLine(source, [&](int number, const std::string& line) {
    std::smatch match;
    if (!IsComment(line) && std::regex_search(line, match, pattern))
      findings.push_back(Place(path, number, match.str()));
  });
  return findings;
}

std::optional<std::string> WrongInclude(std::string_view path, const std::string& line) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
  std::smatch match;
  if (!std::regex_search(line, match, kInclude)) return std::nullopt;
  const std::string header = match[2];
  if (header.find("..") != std::string::npos) return "includes by a way around: " + header;
  if (match[1] == "<" && !kRanks.contains(TopFolder(header))) {
    const bool qt = header.starts_with("Q") || header.starts_with("qt");
    return qt && !MayUseQt(path) ? std::optional("includes Qt: " + header) : std::nullopt;
  }
  if (header.starts_with("platform/qt/") && !MayUseQt(path)) return "includes Qt: " + header;
  if (header.starts_with("platform/sim/") && !path.starts_with("platform/sim/"))
    return "includes the simulated platform: " + header;
  if (!MayInclude(TopFolder(path), TopFolder(header))) return "includes a later folder: " + header;
  return std::nullopt;
}

}  // namespace

Findings FolderOrder(std::string_view path, std::string_view source) {
  Findings findings;
  EachLine(source, [&](int number, const std::string& line) {
    if (const auto wrong = WrongInclude(path, line))
      findings.push_back(Place(path, number, *wrong));
  });
  return findings;
}

Findings NoClockOutsidePlatform(std::string_view path, std::string_view source) {
  static const std::regex kClocks(
      R"(QTimer\b|QBasicTimer|QElapsedTimer|startTimer\(|(steady|system|high_resolution|utc)_clock::now|(QDateTime|QDate|QTime)::current|std::time\(|\bclock_gettime\(|\bgettimeofday\()");
  if (path.starts_with("platform/")) return {};
  return Matches(path, source, kClocks);
}

Findings NoNestedLoop(std::string_view path, std::string_view source) {
  static const std::regex kLoops(
      R"(processEvents|QEventLoop|(\.|->|::)exec\(|waitFor[A-Z]\w*\(|sleep_for|sleep_until|\busleep\(|\bnanosleep\(|::sleep\(|QThread)");
  if (path == "main.cpp") return {};
  return Matches(path, source, kLoops);
}

}  // namespace checks
