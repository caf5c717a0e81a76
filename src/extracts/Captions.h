// Captions for a game's video (WebVTT): the score, from each basket to the next, with who has scored.
#pragma once

#include "extracts/VideoClock.h"

#include <string>
#include <vector>

namespace hooptab {

struct CaptionList {
  std::string text; // the whole file; without a caption where no event has a time
  std::vector<VideoNote> notes;
};
[[nodiscard]] CaptionList captionsOf(const ExtractSource& source, const std::vector<VideoAnchor>& anchors,
                                     const Texts& texts);

} // namespace hooptab
