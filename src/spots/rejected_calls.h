#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace spots {

// The entries of a list of calls, found by their places, which count from 0 as they were added.
class RejectedCalls {
 public:
  using Place = std::optional<std::size_t>;

  void Clear();
  // An entry that isn't held yet.
  void Add(std::string_view entry);
  bool Empty() const { return exact_.empty(); }

  // The entry that is this call to the letter.
  Place Exact(std::string_view call) const;
  // The first entry that is this call or whose "*" stands for a part of it: one that begins with
  // "*" fits each call that ends in the rest of it, any other each call that begins with what
  // stands before the "*".
  Place FirstMatch(std::string_view call) const;

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>()(text);
    }
  };
  struct Wildcard {
    std::size_t place = 0;
    bool ending = false;  // else the beginning
    std::string part;     // that the call must have there

    bool Fits(std::string_view call) const {
      return ending ? call.ends_with(part) : call.starts_with(part);
    }
  };

  std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> exact_;  // the others too
  std::vector<Wildcard> wildcards_;
};

}  // namespace spots
