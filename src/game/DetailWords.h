// The details of an event in words: "shooting, on 7 Ida Ivers, free throws: 2", and the one table of the
// kinds that an event can be of: words, boxes and questions all read it. Lays out nothing.
#pragma once

#include "game/EventKind.h"
#include "game/EventWords.h"

#include <span>
#include <string>
#include <string_view>

namespace hooptab {

// A value of detail_key::kKind.
struct KindWord {
  std::string_view value;
  Text text;          // as a choice names it
  bool isSaid = true; // beside an event; not where it is the usual one, or in the event's own name
};
// The kinds of an event of that code, in the order in which they are offered; empty where it has none.
// "MEDIA" is a time-out of nobody's.
[[nodiscard]] std::span<const KindWord> detailKinds(EventCode code);

// With commas between; empty where nothing is known but that it happened. A value that is none of those of
// its key stands as it is written.
[[nodiscard]] std::string detailWords(const GameEvent& event, const EventWords& words, const Texts& texts);

} // namespace hooptab
