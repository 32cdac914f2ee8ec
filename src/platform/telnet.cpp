#include "platform/telnet.h"

namespace platform {
namespace {

constexpr unsigned char kSe = 240;  // end of sub-negotiation; the first of the commands
constexpr unsigned char kSb = 250;
constexpr unsigned char kWill = 251;
constexpr unsigned char kWont = 252;
constexpr unsigned char kDo = 253;
constexpr unsigned char kDont = 254;
constexpr unsigned char kIac = 255;

}  // namespace

void TelnetFilter::Filter(std::string_view bytes, std::string& text, std::string& replies) {
  while (!bytes.empty()) {
    if (at_ == At::Text) {
      // What is plain text goes through in one piece: that is nearly all there ever is.
      const auto plain = bytes.substr(0, bytes.find(static_cast<char>(kIac)));
      text += plain;
      bytes.remove_prefix(plain.size());
      if (bytes.empty()) return;
    }
    Byte(static_cast<unsigned char>(bytes.front()), text, replies);
    bytes.remove_prefix(1);
  }
}

void TelnetFilter::Byte(unsigned char byte, std::string& text, std::string& replies) {
  switch (at_) {
    case At::Text:
      at_ = At::Iac;
      break;
    case At::Iac:
      Command(byte, text);
      break;
    case At::Option:
      Offer(byte, replies);
      at_ = At::Text;
      break;
    case At::Subnegotiation:
    case At::SubnegotiationIac:
      Subnegotiate(byte);
      break;
  }
}

void TelnetFilter::Command(unsigned char byte, std::string& text) {
  at_ = At::Text;
  if (byte == kIac) {
    text += static_cast<char>(kIac);
  } else if (byte < kSe) {
    text += static_cast<char>(kIac);
    text += static_cast<char>(byte);
  } else if (byte == kSb) {
    at_ = At::Subnegotiation;
    subnegotiated_ = 0;
  } else if (byte == kWill || byte == kWont || byte == kDo || byte == kDont) {
    verb_ = byte;
    at_ = At::Option;
  }
}

void TelnetFilter::Offer(unsigned char option, std::string& replies) {
  if (verb_ != kWill && verb_ != kDo) return;
  auto& refused = verb_ == kWill ? refusedToAccept_ : refusedToPerform_;
  if (refused.test(option)) return;
  refused.set(option);
  replies += static_cast<char>(kIac);
  replies += static_cast<char>(verb_ == kWill ? kDont : kWont);
  replies += static_cast<char>(option);
}

void TelnetFilter::Subnegotiate(unsigned char byte) {
  if (at_ == At::SubnegotiationIac && byte == kSe) {
    at_ = At::Text;
    return;
  }
  const bool escape = at_ == At::Subnegotiation && byte == kIac;
  at_ = escape ? At::SubnegotiationIac : At::Subnegotiation;
  if (++subnegotiated_ >= kLongestSubnegotiation) at_ = At::Text;
}

}  // namespace platform
