#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/observers.h"
#include "core/text.h"
#include "core/text_page.h"
#include "platform/browser.h"

// What stands out in a page of text that a node has sent: the addresses of the web in it, and the
// headings.
namespace session {

struct Link {
  core::Position start;  // in its line, from 1
  std::string text;

  bool operator==(const Link&) const = default;
};

// The links of a line in their order. One begins with "http:/", "https:/", or "www." behind a
// blank, and goes up to the next blank or the end of the line; a control character ends it too.
std::vector<Link> FindHTML(std::string_view line);

// What a browser is to open for the text of a link, without the punctuation behind it. Empty if it
// names no host of the web in characters that stand for themselves.
std::string AddressOf(std::string_view link);

// Where the heading of a line begins, which goes to its end; 0 if it has none.
core::Position HeadingStart(std::string_view line);

// The links of a page, which outlives it.
class Links {
 public:
  // `notOpened` is told the text of a link that the user wants to open in vain.
  Links(core::TextPage& page, platform::Browser& browser,
        std::function<void(const std::string& link)> notOpened);

  // Those of a line of the page, counted from 0 as they stand there now.
  std::span<const Link> Of(std::size_t line) const;

  // They are links no more, though their text still stands on the page.
  void Clear();
  core::Observers<> Cleared;

  // The user's act.
  void Open(const Link& link);

 private:
  void Follow(const core::TextPage& page, const core::TextPage::Change& change);

  platform::Browser& browser_;
  std::function<void(const std::string&)> notOpened_;
  std::deque<std::vector<Link>> lines_;
  platform::Registration following_;
};

}  // namespace session
