// The chapters of a game's video, as lines of its description: the periods, the time-outs, and the runs of
// one team. They obey the rules of the sites that show them, where one fault switches all off: the first is
// at 0:00, there are three at least, each is later than the one before by 10 seconds or more.
#pragma once

#include "extracts/VideoClock.h"
#include "game/Side.h"

#include <cstddef>
#include <string>
#include <vector>

namespace hooptab {

inline constexpr std::size_t kFewestChapters = 3;
inline constexpr std::size_t kLongestChapterTitle = 70; // letters
inline constexpr VideoTime kShortestChapter = 10'000;
inline constexpr int kShortestRun = 8; // points of one team, with none of the other

struct ChapterList {
  std::string text; // empty where there are fewer than the rules ask for
  std::vector<VideoNote> notes;
};
// Where two would be closer, a period goes before a time-out, and that before a run.
[[nodiscard]] ChapterList chaptersOf(const ExtractSource& source, const std::vector<VideoAnchor>& anchors,
                                     const Texts& texts);

// A run: from the first of its scores, the longest there is.
struct ChapterRun {
  std::size_t place = 0; // of its first score in the game's list
  Side team = Side::Visitor;
  int points = 0;
};
// Those of kShortestRun points or more, across periods too.
[[nodiscard]] std::vector<ChapterRun> runsOf(const EventList& events);

} // namespace hooptab
