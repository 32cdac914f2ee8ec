#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

namespace spots {

// A row as it stands in the table, made once and never changed. Copies share it: it costs its
// memory once, however many stores and views it stands in. For the one thread.
class TableRow {
 public:
  enum class Kind : std::uint8_t {
    Skimmer,
    Other,
    Stars,  // no spot, but the place of the first one that has not been seen
  };

  // `text` is copied. `minute`: of a separator, when it was set, in UTC minutes of the day.
  TableRow(std::string_view text, Kind kind, int band, int minute = 0);
  TableRow(const TableRow& other) noexcept : block_(other.block_) { ++block_->references; }
  TableRow& operator=(TableRow other) noexcept {
    std::swap(block_, other.block_);
    return *this;
  }
  ~TableRow() { Release(); }

  std::string_view Text() const { return {Characters(), block_->length}; }
  Kind RowKind() const { return block_->kind; }
  bool IsStars() const { return RowKind() == Kind::Stars; }
  // The band that gives the colour; 0: the view's own colour.
  int Band() const { return block_->band; }
  int Minute() const { return block_->minute; }

 private:
  // The characters stand right behind it.
  struct Block {
    std::size_t length;
    std::uint32_t references;
    std::int16_t minute;
    std::uint8_t band;
    Kind kind;
  };

  const char* Characters() const { return reinterpret_cast<const char*>(block_ + 1); }
  void Release() noexcept;

  Block* block_;
};

}  // namespace spots
