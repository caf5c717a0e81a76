// Which details of an event can be chosen, and from what: as far as the level of the game asks for them, or
// the event holds them. Whoever shows boxes or questions lays these out.
#pragma once

#include "game/GameFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class Texts;

struct DetailChoice {
  struct Value {
    std::string value; // in the file; empty: nobody said
    std::string words;
  };
  std::string_view key; // of detail_key
  Text caption = Text::None;
  std::vector<Value> values; // the first is the empty one
  std::size_t held = 0;      // the event's own; one that is none of those of its key stands last
};

// Of an event as it stands, or as it would be.
[[nodiscard]] std::vector<DetailChoice> detailChoices(const Game& game, const GameEvent& event,
                                                      const Texts& texts);

} // namespace hooptab
