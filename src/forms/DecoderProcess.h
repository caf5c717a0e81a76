// The other side of PageDecoder: the program as the process that decodes one page of a picture file, with
// little memory and time, and no right to write to a file. No window, no settings, no lock of the program is
// touched.
#pragma once

#include "forms/DecoderLimits.h"

#include <optional>

namespace hooptab {

// For main, before anything else: when the program was started for a page, decodes it, writes the answer to
// standard output, and gives the status to return.
[[nodiscard]] std::optional<int> decodePageIfAsked(int argc, char** argv);

// From here on this process has so much, and ends with the thread that started it.
void confineProcess(const DecoderLimits& limits);

} // namespace hooptab
