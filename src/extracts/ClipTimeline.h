// Clips as a timeline for the video programs of coaches: one XML file that most of them read, described in
// docs/formats/clips.md.
#pragma once

#include "extracts/Clips.h"

#include <string>

namespace hooptab {

// The colours of the rows are those of the teams.
[[nodiscard]] std::string timelineXml(const ClipList& list, const GameDetails& details);

} // namespace hooptab
