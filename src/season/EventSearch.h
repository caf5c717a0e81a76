// A search over all events of a season's games, as somebody types it in English or French: "3P made by number
// 7 in the last two minutes", "revirements de LYNX période 4". What is asked for is taken from the words, and
// the games' files are read for it, for a season keeps no events. Shows nothing.
#pragma once

#include "catalogue/GameCatalogue.h"
#include "game/EventKind.h"
#include "game/GameFile.h"
#include "storage/TaskWatch.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// What is left empty holds for every event.
struct EventCriteria {
  std::vector<EventCode> kinds;
  std::optional<bool> isMade;
  std::optional<std::string> jersey; // canonical
  std::optional<SeasonId> team;      // in the catalogue
  // Of the regular periods, from 1.
  std::optional<int> fromPeriod, toPeriod;
  bool isOvertime = false;
  // Before the end of the period; where none was asked for, of the game's last one or of an overtime.
  std::optional<int> lastSeconds;
  std::optional<int> margin; // at most so many points between the teams before it

  friend bool operator==(const EventCriteria&, const EventCriteria&) = default;
};

struct EventQuery {
  EventCriteria criteria;
  std::vector<std::string> unknown; // words that say nothing here, as typed
  // Nothing was asked for.
  [[nodiscard]] bool isEmpty() const { return criteria == EventCriteria(); }
};
// Letter case and accents do not matter. Teams are known by their abbreviations.
[[nodiscard]] EventQuery parseEventQuery(std::string_view text, std::span<const SeasonTeam> teams);
// How it was understood: "3 points · made · Number 7 · In the last 2 min".
[[nodiscard]] std::string queryWords(const EventCriteria& criteria, const GameCatalogue& catalogue,
                                     const Texts& texts);

struct FoundEvent {
  std::size_t game = 0; // in the catalogue
  int period = 0;
  int clockSeconds = 0;
  PerSide<int> score = {}; // after it
  std::string periodText, clock, words;
};
struct FoundEvents {
  static constexpr std::size_t kMost = 5000;

  std::vector<FoundEvent> events; // in the order of the games
  std::size_t games = 0;          // in which there are any
  bool isCut = false;             // there are more than kMost
};
// Games that cannot be read any more are passed over, and so are those entered as totals. Cancelled, it lacks
// some of the games.
[[nodiscard]] FoundEvents searchEvents(FileSystem& files, const GameCatalogue& catalogue,
                                       std::span<const std::size_t> games, const EventCriteria& criteria,
                                       const Texts& texts, const TaskWatch& watch = {});

} // namespace hooptab
