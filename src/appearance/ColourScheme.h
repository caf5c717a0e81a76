// The two looks of the program, as a choice that the command line and the remembered settings can name
// without any window.
#pragma once

#include <cstdint>

namespace hooptab {

enum class ColourScheme : std::uint8_t { Light, Dark };

} // namespace hooptab
