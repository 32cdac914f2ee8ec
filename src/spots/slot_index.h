#pragma once

#include <cstddef>
#include <vector>

namespace spots {

// Finds the slots of a ring by the hashes of what they hold, the newest of each hash first, without
// allocating but for room. Equal hashes don't make equal contents: that is for who asks.
class SlotIndex {
 public:
  static constexpr int kNone = -1;

  // Room for slots 0 to `slots` - 1. What is in stays in.
  void MakeRoom(std::size_t slots);

  // The slot must not be in.
  void Add(int slot, std::size_t hash);
  // Nothing if it isn't in.
  void Remove(int slot);

  // The newest slot of that hash, and the next older one behind a slot; kNone if there is none.
  int First(std::size_t hash) const;
  int Next(int slot) const;

 private:
  struct Node {
    std::size_t hash = 0;
    int newer = kNone;
    int older = kNone;
    bool in = false;
  };

  int& Bucket(std::size_t hash) { return buckets_[hash & (buckets_.size() - 1)]; }
  Node& At(int slot) { return nodes_[static_cast<std::size_t>(slot)]; }
  const Node& At(int slot) const { return nodes_[static_cast<std::size_t>(slot)]; }
  int SameFrom(int slot, std::size_t hash) const;
  void Spread(std::size_t buckets);

  std::vector<Node> nodes_;
  std::vector<int> buckets_;  // the newest slot of each; their number is a power of two
};

}  // namespace spots
