// The events of a game that is being recorded, brought together with what others have made of its file
// meanwhile. Ours stand, in our order; what others added comes in at its place; where one number says two
// things, theirs gives way and is named. Decides alone; reads and writes nothing.
#pragma once

#include "game/EventList.h"
#include "game/Side.h"
#include "storage/ProfileText.h"

#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct GameMerge {
  EventList events; // both
  int added = 0;    // of theirs that are new here
  int restored = 0; // of ours that stood in the file and now do not, or say another thing
  // Of theirs that give way: another line under a number that is taken, or one that cannot be understood.
  std::vector<EventPlace> gaveWay;
  // Their file hides a line of ours behind another without "=": it cannot be mended line by line.
  bool isHidden = false;
};

// `left` is the file as it was written last, before others touched it; ours may have gone on since.
[[nodiscard]] GameMerge mergeGame(const EventList& ours, const ProfileText& left, const ProfileText& theirs);

// Whether an event names the player of that jersey: as the one who did something, or on court.
[[nodiscard]] bool isNamed(const EventList& events, Side team, std::string_view jersey);

} // namespace hooptab
