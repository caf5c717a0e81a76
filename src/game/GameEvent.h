// One event of a game: a line of a period section, taken apart. What cannot be understood keeps its text,
// counts nothing and moves nothing. The grammar is in docs/formats/game.md. Views point into text that the
// event's list keeps alive.
#pragma once

#include "game/EventKind.h"
#include "game/Side.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace hooptab {

// The last period that a game can have.
inline constexpr int kLastPeriod = 255;

struct PlayerReference {
  std::optional<Side> team = {}; // alone, of what a team did; none: of the clock, or nobody's
  std::string_view jersey;

  [[nodiscard]] static std::optional<PlayerReference> read(std::string_view text); // "0-12"
};

struct GameEvent {
  std::string_view key;  // the event's number as the file writes it
  std::string_view line; // the value as every reader gets it, "E" of a deleted event included
  int number = 0;        // of the key; 0 when it is no number
  int period = 0;        // of its section, which may lie behind kLastPeriod
  bool isDeleted = false;
  bool isUnderstood = false;   // everything below holds only then
  bool isMade = false;         // shots
  bool hasPlace = false;       // x and y were given
  bool isDoubtful = false;     // marked while recording, to be looked at again
  std::uint16_t detailsAt = 0; // where in the line the fields begin that stand behind those of the grammar
  EventCode code = EventCode::Unknown;
  const EventKind* eventKind = nullptr;
  int clockSeconds = 0;
  std::uint32_t unread = 0; // bytes of the line that stand behind, and that no reader takes; always
  PlayerReference player;
  float x = 0, y = 0; // court units, left-hand orientation

  // The value of a field "KEY=VALUE" behind those of the grammar, in whatever order they stand.
  [[nodiscard]] std::optional<std::string_view> detail(std::string_view detailKey) const;
  // XJB: the player of that side.
  [[nodiscard]] PlayerReference jumper(Side team) const;
  // ARRET: a team's list as written; empty for nobody.
  std::string_view onCourt(Side team) const;
  // The line with what no reader takes, as it has to stay.
  std::string_view whole() const { return {line.data(), line.size() + unread}; }
  bool isShot() const { return code >= EventCode::GFG; }
  bool isClock() const { return code == EventCode::DEPART || code == EventCode::ARRET; }
  bool isOfPlayer() const { return eventKind != nullptr && !eventKind->isOfTeam; }
  bool isOfTeam() const { return eventKind != nullptr && eventKind->isOfTeam; }
  const EventKind* kind() const { return eventKind; } // null for the clock's events

  // Takes apart one line; `key`, `period` and `line` are kept as given.
  static GameEvent parse(int period, std::string_view key, std::string_view line);
  // The same in place, on a fresh event; `keyNumber` is the key's number, 0 when it is none.
  void parseLine(int eventPeriod, std::string_view eventKey, int keyNumber, std::string_view eventLine);
};

// The event text behind the clock, as the writer takes it: ",GFG,0-12,42,51", and ",GDK,0-12,X=42,Y=51" of a
// kind that has no place of its own. Places are truncated to whole units.
[[nodiscard]] std::string eventText(EventCode code, bool made, Side team, std::string_view jersey,
                                    std::optional<std::pair<double, double>> place = std::nullopt);
// The same of what a team does, but for a jump ball: ",XOR,1"; without a team, a time-out of nobody's.
[[nodiscard]] std::string teamEventText(EventCode code, std::optional<Side> team);
[[nodiscard]] std::string startText();
[[nodiscard]] std::string stopText(std::string_view list0, std::string_view list1);

} // namespace hooptab
