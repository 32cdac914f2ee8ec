#pragma once

namespace platform {

// What the desktop's surfaces are like.
enum class ColourScheme { Light, Dark };

}  // namespace platform
