// A game of which something is taken out, with what its file says beside the events: by what others know its
// players, and when its events happened.
#pragma once

#include "game/CountedGame.h"
#include "game/PlayerIds.h"
#include "game/Side.h"
#include "storage/ProfileText.h"

#include <cstdint>
#include <map>
#include <string>

namespace hooptab {

struct ExtractSource {
  const CountedGame& counted;
  PerSide<PlayerIds> ids = {};
  // By event number, in milliseconds of UTC since 1970, as game/WallClock.h reads them.
  std::map<int, std::int64_t> wallClock = {};

  [[nodiscard]] const Game& game() const { return counted.game; }
};

// `text` is the file of that game. The game must outlive what comes of it.
[[nodiscard]] ExtractSource extractSource(const CountedGame& counted, const ProfileText& text);

// The name of its file, without the folder.
[[nodiscard]] std::string fileNameOf(const Game& game);
// Its IDPARTIE; of a game without one the name of its file.
[[nodiscard]] std::string gameKey(const Game& game);

} // namespace hooptab
