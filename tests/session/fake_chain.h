#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "session/chain.h"

// A chain whose rows a test makes up.
class FakeChain : public session::Chain {
 public:
  using Handler = std::function<Claim(std::string_view line)>;

  // The row that is closed to a TNC session before its login, with all behind it.
  int firstRowForSession = 1;

  void Add(std::string name, Handler handler) {
    rows_.push_back({std::move(name), std::move(handler)});
  }

  int Rows() const override { return static_cast<int>(rows_.size()); }
  std::string_view Name(int row) const override { return At(row).name; }
  int FirstRowForSession() const override { return firstRowForSession; }
  Claim Offer(int row, std::string_view line) override { return At(row).handler(line); }

 private:
  struct Row {
    std::string name;
    Handler handler;
  };

  const Row& At(int row) const { return rows_.at(static_cast<std::size_t>(row) - 1); }

  std::vector<Row> rows_;
};
