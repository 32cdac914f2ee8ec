#include "session/node_list.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "core/quoted.h"
#include "core/text.h"

namespace session {
namespace {

constexpr std::string_view kVersionWord = "VERSION";
constexpr std::ptrdiff_t kOldFields = 3;

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7F; }

std::string_view TakeField(std::string_view& line) {
  return core::Trim(core::ExtractToCharacter(',', line));
}

std::optional<NodeList::Row> ParseNodeLine(std::string_view line, const NodeListFormat& format) {
  const auto fields = std::count(line.begin(), line.end(), ',') + 1;
  if (!format.info && fields != kOldFields) return std::nullopt;
  const auto call = TakeField(line);
  const auto host = TakeField(line);
  const auto port = TakeField(line);
  if (call.empty() || host.empty()) return std::nullopt;
  return NodeList::Row{.call = call, .host = host, .port = port, .info = TakeField(line)};
}

}  // namespace

bool IsBlockedNode(std::string_view call) {
  return std::find(kBlockedNodes.begin(), kBlockedNodes.end(), call) != kBlockedNodes.end();
}

bool IsNodePort(std::string_view text) {
  std::uint16_t port = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), port);
  return fault == std::errc() && end == text.data() + text.size() && port > 0;
}

std::string NodeField(std::string_view text) {
  std::string field(text);
  std::erase(field, '"');
  std::replace_if(
      field.begin(), field.end(), [](char c) { return c == ',' || IsControl(c); }, ' ');
  return std::string(core::Trim(field));
}

std::string WithoutQuotes(std::string_view text) {
  std::string without(text);
  std::erase(without, '"');
  return without;
}

NodeList ParseNodeList(std::string_view text, const NodeListFormat& format) {
  NodeList list;
  while (!text.empty()) {
    const auto row = ParseNodeLine(core::TakeLine(text), format);
    if (!row) continue;
    if (row->call == kVersionWord) {
      list.version = row->host;
    } else if (IsNodePort(row->port) && !IsBlockedNode(row->call)) {
      list.rows.push_back(*row);
    }
  }
  return list;
}

void AppendNodeVersion(std::string& text, std::string_view version, const NodeListFormat& format) {
  AppendNodeLine(text, {std::string(kVersionWord), std::string(version), {}, {}}, format);
}

void AppendNodeLine(std::string& text, const NodeRow& row, const NodeListFormat& format) {
  text += row.call + "," + row.host + "," + row.port;
  if (format.info) text += "," + row.info;
  text += "\r\n";
}

}  // namespace session
