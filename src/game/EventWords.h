// Says an event in words, in the language in use: "LYNX 12 Ann Able: 2 points made", and for a stop who went
// in and out. Used by every list of events, on screen, on paper and in the terminal.
#pragma once

#include "game/GameFile.h"
#include "game/Side.h"
#include "settings/Texts.h"

#include <string>
#include <string_view>

namespace hooptab {

// All behind the first name; the whole of a name of one word.
[[nodiscard]] std::string familyName(std::string_view name);

class EventWords {
 public:
  // Both must outlive it.
  EventWords(const Game& game, const Texts& texts);

  // Words of the event at that place of the game's list. Lines that cannot be understood are given as they
  // stand.
  [[nodiscard]] std::string words(std::size_t eventIndex) const;
  // The same without the team, of what that side did: "12 Ann Able: 2 points made"; empty where it did
  // nothing, as when the clock was started or stopped.
  [[nodiscard]] std::string wordsOfSide(std::size_t eventIndex, Side side) const;
  // The same where room is short: "LYNX 12 ● 2 points" for a made shot, a cross for a missed one, and no
  // names but that of a side that is its own player.
  [[nodiscard]] std::string shortWords(std::size_t eventIndex) const;
  // In parts, for a row of a narrow list that draws them apart.
  struct Parts {
    // Whose it is; none of the clock's own, and where both sides changed players.
    std::optional<Side> team = {};
    std::string jersey = {};
    std::string name = {};   // the family name
    std::string action = {}; // "2 points (FG)", "in 5 out 11"; the whole line where it is not understood
  };
  [[nodiscard]] Parts parts(std::size_t eventIndex) const;
  // The abbreviation, or the side in words.
  [[nodiscard]] std::string_view team(Side team) const;
  // "1", "OT1": the period as it is shown.
  [[nodiscard]] std::string periodText(int period) const;
  // The clock as shown: "--:--" in a game without time, empty for a line that cannot be understood.
  [[nodiscard]] std::string clock(std::size_t eventIndex) const;
  // "12 Name", or the jersey and "unknown player" for one who is in no roster.
  [[nodiscard]] std::string player(const PlayerReference& reference) const;

 private:
  enum class Length { Whole, Short };
  [[nodiscard]] std::string words(std::size_t eventIndex, Length length) const;
  // Empty when nobody went in or out.
  [[nodiscard]] std::string substitution(std::size_t eventIndex, Length length) const;
  [[nodiscard]] std::string changesOf(std::size_t eventIndex, Side side, Length length) const;
  [[nodiscard]] std::string action(const GameEvent& event) const;
  [[nodiscard]] std::string wordsOfTeam(const GameEvent& event, Length length) const;

  const Game& m_game;
  const Texts& m_texts;
};

} // namespace hooptab
