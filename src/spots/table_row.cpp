#include "spots/table_row.h"

#include <cstring>
#include <new>

namespace spots {

TableRow::TableRow(std::string_view text, Kind kind, int band, int minute)
    : block_(new (::operator new(sizeof(Block) + text.size()))
                 Block{.length = text.size(),
                       .references = 1,
                       .minute = static_cast<std::int16_t>(minute),
                       .band = static_cast<std::uint8_t>(band),
                       .kind = kind}) {
  if (!text.empty()) std::memcpy(block_ + 1, text.data(), text.size());
}

void TableRow::Release() noexcept {
  if (--block_->references == 0) ::operator delete(block_);
}

}  // namespace spots
