// What others know the players of a game by: their licences, and their ids in another program's files.
// Sections JOUEURS0 and JOUEURS1 of the game's file, as docs/formats/game.md describes them. Who counts a
// game needs none of it, so it is read where it is asked for alone.
#pragma once

#include "game/Side.h"
#include "storage/ProfileBatch.h"
#include "storage/ProfileText.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace hooptab {

struct PlayerId {
  std::string licence;
  std::string foreignId;
  friend bool operator==(const PlayerId&, const PlayerId&) = default;
};
// By the jersey, as the roster writes it.
using PlayerIds = std::map<std::string, PlayerId, std::less<>>;

[[nodiscard]] std::string playerIdSection(Side team);
[[nodiscard]] PlayerIds readPlayerIds(const ProfileText& text, Side team);
// Adds to a batch for the file of that text what one player is known by; an empty part clears. What else his
// line says stays. False, and nothing added, for a part with a comma, or a line that no value holds.
[[nodiscard]] bool planPlayerId(const ProfileText& text, Side team, std::string_view jersey,
                                const PlayerId& id, ProfileBatch& batch);

} // namespace hooptab
