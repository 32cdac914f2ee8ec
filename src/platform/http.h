#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/task.h"

namespace platform {

// Fetches from the web.
class Http {
 public:
  // Why there is no answer to use. None: there is one.
  enum class Fault {
    None,
    BadAddress,  // no address of http or https, or one that leads on to such a one
    HostNotFound,
    Refused,    // nothing listens there
    TimedOut,   // nothing came for too long
    NotSecure,  // the other side can't show who it is
    TooManyRedirects,
    Status,    // the server says no, by `status`
    TooLarge,  // more than was wanted
    BrokenOff,
    Other,
  };

  struct Request {
    std::string url;
    std::size_t mostBytes = 0;                       // what is longer is TooLarge
    Milliseconds silence{std::chrono::seconds{20}};  // for which nothing may come
    // Told as bytes come: how many there are, and how many there will be; 0 if that is not known.
    // It does not cancel the fetch.
    std::function<void(std::uint64_t received, std::uint64_t expected)> progress = {};
  };

  struct Answer {
    Fault fault = Fault::None;
    int status = 0;           // of the server; 0 if it said none
    std::string description;  // of the fault, for the error log
    // Without that, bytes that broke off can't always be told from all there are.
    bool lengthTold = false;
    std::string bytes;  // empty with a fault
  };

  static constexpr int kMostRedirects = 5;

  virtual ~Http() = default;

  // Fetches what stands at an address, following redirects. Cancelling the Task ends the transfer.
  virtual Task<Answer> Get(Request request) = 0;
};

}  // namespace platform
