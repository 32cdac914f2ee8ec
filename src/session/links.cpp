#include "session/links.h"

#include <algorithm>
#include <array>
#include <utility>

namespace session {
namespace {

using core::Position;

constexpr std::array<std::string_view, 2> kSchemes = {"http://", "https://"};
constexpr std::string_view kHeadingMark = "*.  ";

bool EndsLink(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code <= ' ' || code == 0x7F;
}

// Whether a link begins at that place, counted from 0.
bool BeginsLink(std::string_view line, std::size_t at) {
  const std::string_view rest = line.substr(at);
  if (rest.starts_with("http:/") || rest.starts_with("https:/")) return true;
  return at > 0 && line[at - 1] == ' ' && rest.starts_with("www.");
}

bool IsPrintableAscii(char byte) { return byte > ' ' && byte < 0x7F; }

bool IsOfHost(char byte) {
  const bool digit = byte >= '0' && byte <= '9';
  const bool letter = core::UCase(byte) >= 'A' && core::UCase(byte) <= 'Z';
  return digit || letter || byte == '.' || byte == '-' || byte == ':';
}

// A sentence goes on or ends behind a link; a bracket may belong to it.
std::string_view WithoutPunctuation(std::string_view link) {
  const auto isBehind = [&link](char last) {
    if (last == ')') return link.find('(') == std::string_view::npos;
    return std::string_view(".,;:!?'\">]}").find(last) != std::string_view::npos;
  };
  while (!link.empty() && isBehind(link.back())) link.remove_suffix(1);
  return link;
}

bool NamesHost(std::string_view address) {
  const auto scheme = std::ranges::find_if(
      kSchemes, [address](std::string_view each) { return address.starts_with(each); });
  if (scheme == kSchemes.end()) return false;
  const std::string_view rest = address.substr(scheme->size());
  const std::string_view host = rest.substr(0, rest.find_first_of("/?#"));
  return !host.empty() && IsOfHost(host.front()) && host.front() != ':' &&
         std::ranges::all_of(host, IsOfHost);
}

}  // namespace

std::vector<Link> FindHTML(std::string_view line) {
  std::vector<Link> links;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (!BeginsLink(line, at)) continue;
    const std::string_view rest = line.substr(at);
    const auto end = std::ranges::find_if(rest, EndsLink);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    links.push_back({static_cast<Position>(at + 1), std::string(rest.substr(0, length))});
    at += length - 1;
  }
  return links;
}

std::string AddressOf(std::string_view link) {
  link = WithoutPunctuation(link);
  if (!std::ranges::all_of(link, IsPrintableAscii)) return {};
  const bool bare = link.starts_with("www.");
  std::string address = (bare ? "http://" : "") + std::string(link);
  return NamesHost(address) ? address : std::string();
}

Position HeadingStart(std::string_view line) {
  const Position mark = core::InStr(line, kHeadingMark);
  const Position start = mark + core::Len(kHeadingMark);
  return mark > 0 && start <= core::Len(line) ? start : 0;
}

Links::Links(core::TextPage& page, platform::Browser& browser,
             std::function<void(const std::string& link)> notOpened)
    : browser_(browser),
      notOpened_(std::move(notOpened)),
      following_(page.Observe(
          [this, &page](const core::TextPage::Change& change) { Follow(page, change); })) {}

std::span<const Link> Links::Of(std::size_t line) const {
  if (line >= lines_.size()) return {};
  return lines_[line];
}

void Links::Clear() {
  for (std::vector<Link>& links : lines_) links.clear();
  Cleared.Tell();
}

void Links::Open(const Link& link) {
  const std::string address = AddressOf(link.text);
  if (address.empty() || !browser_.Open(address)) notOpened_(link.text);
}

void Links::Follow(const core::TextPage& page, const core::TextPage::Change& change) {
  lines_.erase(lines_.begin(), lines_.begin() + static_cast<std::ptrdiff_t>(change.removed));
  const auto& all = page.Lines();
  for (std::size_t line = all.size() - change.added; line < all.size(); ++line)
    lines_.push_back(FindHTML(all[line]));
}

}  // namespace session
