#pragma once

#include <string_view>

namespace session {

// The order of handlers that every line is offered to. Rows count from 1.
class Chain {
 public:
  enum class Claim {
    None,   // the next row
    Tail,   // the line is understood: no further row, then its forwarding
    Quiet,  // the same without forwarding
  };

  virtual ~Chain() = default;
  virtual int Rows() const = 0;
  virtual std::string_view Name(int row) const = 0;
  // Rows from this one on see nothing of a TNC session before its login.
  virtual int FirstRowForSession() const = 0;
  virtual Claim Offer(int row, std::string_view line) = 0;
};

}  // namespace session
