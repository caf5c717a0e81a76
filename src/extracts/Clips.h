// Which events of a game a coach wants to see in its video, each as a clip with a name and labels. Clips that
// overlap stay apart, also those of one name: each is one event, so that the counts of a video program are
// those of the game.
#pragma once

#include "insight/GameWalk.h"
#include "extracts/VideoClock.h"
#include "game/Side.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

// As the file writes it: "GFG" is made ones alone, "GFGA" missed ones.
struct ClipKind {
  EventCode code = EventCode::Unknown;
  bool isMissed = false;
};
// "STO,GF3A"; nothing where one of them is no kind of event that has clips.
[[nodiscard]] std::optional<std::vector<ClipKind>> readClipKinds(std::string_view text);

// Everything that is given has to hold; a text of another form lets nothing through.
struct ClipFilter {
  // "0-7": who does it, draws the foul, jumps or has his shot blocked.
  std::optional<std::string> player = {};
  // "0-04-05-10-12-15": a side, and who of it is on court.
  std::optional<std::string> line = {};
  std::vector<ClipKind> kinds = {}; // none: all
  std::optional<Side> team = {};    // whose event it is
  std::optional<int> period = {};
};
// Whether a text is one for ClipFilter::line.
[[nodiscard]] bool isClipLine(std::string_view text);

struct ClipRequest {
  std::vector<VideoAnchor> anchors = {};
  ClipFilter filter = {};
  VideoTime before = 8000; // the event
  VideoTime after = 4000;
};

struct Clip {
  std::size_t place = 0; // of the event in the game's list
  VideoTime start = 0;
  VideoTime end = 0;
  std::optional<Side> team = {};
  std::string code;                                        // the team and what it did: "LYNX turnover"
  std::vector<std::pair<std::string, std::string>> labels; // group and text
};

struct ClipList {
  std::vector<Clip> clips; // in the order of the game
  int wanted = 0;          // events that the filter lets through
  int unreached = 0;       // of these, those without a time, and those outside the video
  std::vector<VideoNote> notes;
};
// Starts and stops of the clock are no clips, nor is the possession arrow. No clip begins before the video.
[[nodiscard]] ClipList clipsOf(const ExtractSource& source, const ClipRequest& request, const Texts& texts);

} // namespace hooptab
