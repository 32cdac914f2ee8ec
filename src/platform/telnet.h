#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// Takes the commands of the telnet protocol (RFC 854) out of a stream, whatever way the stream is
// cut, and refuses every option that the peer offers or asks for, each once.
//
// A byte 0xFF that starts no command is text: nodes send Latin-1. So is a doubled one, once. A
// sub-negotiation is given up after kLongestSubnegotiation bytes: what follows is text again.
class TelnetFilter {
 public:
  static constexpr std::size_t kLongestSubnegotiation = 1000;

  // Appends the text among `bytes` to `text`, and to `replies` what is to be sent to the peer.
  void Filter(std::string_view bytes, std::string& text, std::string& replies);

 private:
  enum class At { Text, Iac, Option, Subnegotiation, SubnegotiationIac };

  void Byte(unsigned char byte, std::string& text, std::string& replies);
  void Command(unsigned char byte, std::string& text);
  void Offer(unsigned char option, std::string& replies);
  void Subnegotiate(unsigned char byte);

  At at_ = At::Text;
  unsigned char verb_ = 0;             // WILL, WONT, DO or DONT, while its option is awaited
  std::size_t subnegotiated_ = 0;      // bytes of the one that runs
  std::bitset<256> refusedToAccept_;   // answered by DONT
  std::bitset<256> refusedToPerform_;  // answered by WONT
};

}  // namespace platform
