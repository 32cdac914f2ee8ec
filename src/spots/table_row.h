#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "spots/row_shape.h"
#include "spots/spot.h"

namespace spots {

// What a row keeps of its spot besides its text, in which calls may be cut.
struct RowSpot {
  std::string_view DxCall = {};
  std::string_view Spotter = {};
  double Freq = 0;               // kHz
  int minute = 0;                // of the day, UTC; of a separator: when it was set
  std::uint32_t shape = 0;       // as Packed gives it
  std::size_t commentField = 0;  // of a classic row, the columns from the comment to the time
};

// The spot's, for its row.
RowSpot RowSpotOf(const Spot& spot, std::uint32_t shape, std::size_t commentField);

// A row as it stands in the table, made once and never changed. Copies share it: it costs its
// memory once, however many stores and views it stands in. For the one thread.
class TableRow {
 public:
  enum class Kind : std::uint8_t {
    Skimmer,
    Other,
    Stars,  // no spot, but the place of the first one that has not been seen
    Title,  // no spot, but words on those before it
  };

  // The texts are copied; a call keeps 65,535 bytes at most.
  TableRow(std::string_view text, Kind kind, int band, const RowSpot& spot = {});

  std::string_view Text() const { return {Characters(), block_->length}; }
  // The whole calls; empty if no spot made the row.
  std::string_view DxCall() const { return {Characters() + block_->length, block_->dxCall}; }
  std::string_view Spotter() const {
    return {Characters() + block_->length + block_->dxCall, block_->spotter};
  }
  double Freq() const { return block_->freq; }  // kHz
  Kind RowKind() const { return block_->kind; }
  bool IsStars() const { return RowKind() == Kind::Stars; }
  bool IsSpot() const { return !IsStars() && RowKind() != Kind::Title; }
  // The band that gives the colour; 0: the view's own colour.
  int Band() const { return block_->band; }
  int Minute() const { return block_->minute; }
  RowShape Shape() const { return Unpacked(block_->shape); }
  std::uint32_t PackedShape() const { return block_->shape; }
  std::size_t CommentField() const { return block_->commentField; }

  TableRow(const TableRow& other) noexcept : block_(other.block_) { ++block_->references; }
  // One that was moved from can only be assigned to, or go.
  TableRow(TableRow&& other) noexcept : block_(std::exchange(other.block_, nullptr)) {}
  TableRow& operator=(TableRow other) noexcept {
    std::swap(block_, other.block_);
    return *this;
  }
  ~TableRow() { Release(); }

 private:
  // The text stands right behind it, then the calls.
  struct Block {
    double freq;
    std::uint32_t length;
    std::uint32_t references;
    std::uint32_t shape;
    std::uint16_t dxCall;
    std::uint16_t spotter;
    std::uint16_t commentField;
    std::int16_t minute;
    std::uint8_t band;
    Kind kind;
  };

  const char* Characters() const { return reinterpret_cast<const char*>(block_ + 1); }
  void Release() noexcept;

  Block* block_;
};

// Whether a Skimmer made the spot: one of its whole calls says so.
bool IsSkimmer(const Spot& spot);

}  // namespace spots
