#pragma once

#include "session/chain.h"

namespace program {

class Program;

// Every line's way: the 65 rows in their order.
class LineChain : public session::Chain {
 public:
  explicit LineChain(Program& program) : program_(program) {}

  int Rows() const override;
  std::string_view Name(int row) const override;
  int FirstRowForSession() const override;
  Claim Offer(int row, std::string_view line) override;

 private:
  Program& program_;
};

}  // namespace program
