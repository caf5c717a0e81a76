// The plays of a game as whoever follows it is told them: what belongs together is one play, a basket with
// its assist, a miss with its block, a turnover with its steal. Both languages' words are in each, for one
// feed serves all who watch. docs/formats/feed.md describes them.
#pragma once

#include "court/CourtGeometry.h"
#include "game/CountedGame.h"
#include "game/EventKind.h"
#include "game/Side.h"
#include "settings/Texts.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct FeedPlay {
  struct Person {
    std::optional<Side> team = {};
    int entry = 0;      // in the roster; 0: in none
    std::string jersey; // empty: the team itself
    std::string name;   // whole
  };
  struct Partner {
    Person person;
    std::string_view kind; // "assist", "block", "steal"
  };
  struct Change {
    std::vector<std::string> in, out; // jerseys
  };

  std::string id; // of its first event
  int period = 0;
  int clockSeconds = 0;
  std::string_view kind;
  Person who;
  std::array<std::string, kLanguages.size()> words = {}; // what happened, without who
  PerSide<int> score = {};                               // behind it
  bool isShot = false;
  bool isMade = false;
  int points = 0; // of a made shot
  int total = 0;  // the player's points with it
  int fouls = 0;  // of a foul: which one of the player it is, personal and technical ones each by themselves
  int teamFouls = 0;
  bool isOut = false; // it was the last that he may have
  std::optional<court::Place> place = {};
  std::optional<Partner> with = {};
  std::optional<PerSide<Change>> changes = {}; // of a substitution
};

// In the order of the game; none of a game entered as totals. `texts` gives both languages.
[[nodiscard]] std::vector<FeedPlay> feedPlays(const CountedGame& counted, const Texts& texts);

} // namespace hooptab
