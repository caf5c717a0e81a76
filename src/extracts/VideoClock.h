// Where in a video each event of a game is. The user says it of some events, the anchors; the rest comes of
// the clocks, of which there are two:
// - The clock on the wall, where the game's file has it. One anchor then reaches every event that has a time
//   or lies between two that have; of several anchors each holds until the next, as where a camera was
//   stopped.
// - The game's clock. An anchor reaches the events of its stretch, from a start of the clock to its stop, and
//   those that stand at that start or stop while the clock stands; so an older game needs one anchor after
//   each start.
// What no anchor reaches has no time, and is counted.
#pragma once

#include "extracts/ExtractSource.h"
#include "settings/Texts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

using VideoTime = std::int64_t; // milliseconds since the video began

struct VideoAnchor {
  int event = 0; // its number
  VideoTime time = 0;
};
// "312=1:04:12.5": an event's number and h:mm:ss, mm:ss or seconds, with or without a fraction. Nothing for
// any other text.
[[nodiscard]] std::optional<VideoAnchor> readAnchor(std::string_view text);
// "1:04:12"; "4:12" below an hour. Whole seconds, rounded down.
[[nodiscard]] std::string videoTimeText(VideoTime time);

enum class VideoProblem : std::uint8_t {
  UnknownEvent, // an anchor at an event that the game has not, or that is deleted
  Crossed,      // of two anchors, the one that is earlier in the game is not earlier in the video
  Unreached,    // some events have no time
  TooFew,       // fewer chapters than a list of chapters needs
};
struct VideoNote {
  VideoProblem problem = VideoProblem::Unreached;
  // The events of the anchors; how many have no time, and of how many; how many chapters, and how many are
  // needed.
  int x = 0;
  int y = 0;
  friend bool operator==(const VideoNote&, const VideoNote&) = default;
};
[[nodiscard]] std::string inWords(const VideoNote& note, const Texts& texts);

struct VideoTimes {
  std::vector<std::optional<VideoTime>> times; // by the place in the game's list
  std::vector<VideoNote> notes;

  [[nodiscard]] std::optional<VideoTime> at(std::size_t place) const { return times[place]; }
};
// An anchor of which a note is told is left out; of two that cross, the later one.
[[nodiscard]] VideoTimes videoTimes(const ExtractSource& source, const std::vector<VideoAnchor>& anchors);

} // namespace hooptab
