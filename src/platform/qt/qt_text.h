#pragma once

#include <QString>
#include <string_view>

namespace platform::qt {

// The text that bytes stand for: valid sequences as UTF-8, every other byte as Windows-1252.
QString TextOf(std::string_view bytes);

}  // namespace platform::qt
