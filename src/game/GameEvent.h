// One event of a game: a line of a period section, taken apart. What cannot be understood keeps its text,
// counts nothing and moves nothing. The grammar is in docs/formats/game.md. Views point into text that the
// event's list keeps alive.
#pragma once

#include "game/EventKind.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

// The last period that a game can have.
inline constexpr int kLastPeriod = 255;

struct PlayerReference {
  int team = -1; // 0 visiting, 1 home, -1 none
  std::string_view jersey;
};

struct GameEvent {
  std::string_view key; // the event's number as the file writes it
  std::string_view
      line;       // the value, as every reader gets it (at most 254 bytes), "E" of a deleted event included
  int number = 0; // of the key; 0 when it is no number
  int period = 0; // of its section, which may lie behind kLastPeriod
  bool isDeleted = false;
  bool isUnderstood = false; // everything below holds only then
  bool isMade = false;       // shots
  bool hasPlace = false;     // x and y were given
  bool isDoubtful = false;   // marked while recording, to be looked at again
  EventCode code = EventCode::Unknown;
  const EventKind* eventKind = nullptr;
  int clockSeconds = 0;
  PlayerReference player;
  float x = 0, y = 0; // court units, left-hand orientation

  // ARRET: a team's list as written; empty for nobody.
  std::string_view onCourt(std::size_t team) const;
  bool isShot() const { return code >= EventCode::GFG; }
  bool isClock() const { return code == EventCode::DEPART || code == EventCode::ARRET; }
  const EventKind* kind() const { return eventKind; } // null for the clock's events

  // Takes apart one line; `key`, `period` and `line` are kept as given.
  static GameEvent parse(int period, std::string_view key, std::string_view line);
  // The same in place, on a fresh event; `keyNumber` is the key's number, 0 when it is none.
  void parseLine(int eventPeriod, std::string_view eventKey, int keyNumber, std::string_view eventLine);
};

// The event text behind the clock, as the writer takes it: ",GFG,0-12,42,51". Places are truncated to whole
// units.
[[nodiscard]] std::string eventText(EventCode code, bool made, int team, std::string_view jersey,
                                    std::optional<std::pair<double, double>> place = std::nullopt);
[[nodiscard]] std::string startText();
[[nodiscard]] std::string stopText(std::string_view list0, std::string_view list1);

// A line with the mark that its event is doubtful behind all else, or without it.
[[nodiscard]] std::string withDoubt(const std::string& line, bool isDoubtful);

// The events of a game in the order of the file, which is the order of the game. Copies share the text.
class EventList {
 public:
  void reserve(std::size_t count) { m_events.reserve(count); }
  void keep(std::shared_ptr<const std::string> text) { m_texts.push_back(std::move(text)); }
  // Takes apart a line whose text has been kept.
  void append(int period, std::string_view key, int keyNumber, std::string_view line) {
    m_events.emplace_back().parseLine(period, key, keyNumber, line);
  }
  void appendOwned(int period, std::string_view key, std::string_view line); // copies the text

  std::span<const GameEvent> events() const { return m_events; }
  std::size_t size() const { return m_events.size(); }
  const GameEvent& operator[](std::size_t index) const { return m_events[index]; }
  auto begin() const { return m_events.begin(); }
  auto end() const { return m_events.end(); }

 private:
  std::vector<GameEvent> m_events;
  std::vector<std::shared_ptr<const std::string>> m_texts;
};

} // namespace hooptab
