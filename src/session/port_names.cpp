#include "session/port_names.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "core/quoted.h"
#include "core/text.h"
#include "session/port_path.h"

namespace session {
namespace {

using Fault = platform::Files::Fault;

// 0 if the text is no port's number.
int PortNumber(std::string_view text) {
  int number = 0;
  const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = fault == std::errc() && end == text.data() + text.size();
  return whole && number >= 1 && number <= kSerialPorts ? number : 0;
}

bool IsDevice(std::string_view path) {
  const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; };
  return path.starts_with("/") && std::none_of(path.begin(), path.end(), isControl);
}

struct Entry {
  int number = 0;  // 0: the line is none
  std::string device;
};

Entry ParseEntry(std::string_view line) {
  const core::RecordPair pair = core::SplitRecord(line);
  std::string device(core::Trim(pair.second));
  if (!IsDevice(device)) return {};
  return {PortNumber(core::Trim(pair.first)), std::move(device)};
}

}  // namespace

PortNames::PortNames(platform::Files& files, std::string file)
    : files_(files), file_(std::move(file)) {}

std::string PortNames::Path(int number) const {
  if (number < 1 || number > kSerialPorts) return {};
  return Paths()[static_cast<std::size_t>(number)];
}

std::vector<std::string> PortNames::Paths() const {
  std::vector<std::string> paths;
  for (int number = 0; number <= kSerialPorts; ++number) paths.push_back(PortPath(number));
  const auto content = files_.Read(file_);
  for (const std::string_view line : core::SplitLines(content.bytes)) {
    Entry entry = ParseEntry(line);
    if (entry.number != 0) paths[static_cast<std::size_t>(entry.number)] = std::move(entry.device);
  }
  return paths;
}

Fault PortNames::Assign(int number, std::string_view device) {
  const auto content = files_.Read(file_);
  if (content.fault != Fault::None && content.fault != Fault::NotFound) return content.fault;
  std::string text;
  for (const std::string_view line : core::SplitLines(content.bytes))
    if (ParseEntry(line).number != number) text += std::string(line) + "\r\n";
  text += core::Record({core::QuotedField(std::to_string(number)), core::QuotedField(device)});
  return files_.Replace(file_, text);
}

}  // namespace session
