#include "spots/slot_index.h"

#include <bit>
#include <utility>

namespace spots {

void SlotIndex::MakeRoom(std::size_t slots) {
  if (slots > nodes_.size()) nodes_.resize(slots);
  if (slots > buckets_.size()) Spread(std::bit_ceil(slots) * 2);
}

void SlotIndex::Spread(std::size_t buckets) {
  const std::vector<int> old = std::exchange(buckets_, std::vector<int>(buckets, kNone));
  for (const int newest : old) {
    std::vector<int> chain;
    for (int slot = newest; slot != kNone; slot = At(slot).older) chain.push_back(slot);
    for (; !chain.empty(); chain.pop_back()) Add(chain.back(), At(chain.back()).hash);
  }
}

void SlotIndex::Add(int slot, std::size_t hash) {
  int& newest = Bucket(hash);
  At(slot) = {.hash = hash, .newer = kNone, .older = newest, .in = true};
  if (newest != kNone) At(newest).newer = slot;
  newest = slot;
}

void SlotIndex::Remove(int slot) {
  Node& node = At(slot);
  if (!node.in) return;
  (node.newer == kNone ? Bucket(node.hash) : At(node.newer).older) = node.older;
  if (node.older != kNone) At(node.older).newer = node.newer;
  node.in = false;
}

int SlotIndex::First(std::size_t hash) const {
  if (buckets_.empty()) return kNone;
  return SameFrom(buckets_[hash & (buckets_.size() - 1)], hash);
}

int SlotIndex::Next(int slot) const { return SameFrom(At(slot).older, At(slot).hash); }

int SlotIndex::SameFrom(int slot, std::size_t hash) const {
  while (slot != kNone && At(slot).hash != hash) slot = At(slot).older;
  return slot;
}

}  // namespace spots
