// A game from the text of its file, without a file: for tests of what is made of a game.
#pragma once

#include "game/CountedGame.h"
#include "game/GameFile.h"
#include "game/Side.h"
#include "game/Tally.h"

#include <memory>
#include <string>

namespace hooptab {

// Two teams, PAN with seven players and OLY with five, and the periods given ("[PERIODE1]\n1=..."). Details
// of the game that are given go before its own.
inline std::string textOfGame(const std::string& periods, const std::string& details = {}) {
  return "[DETAILS]\nVERSION=2.0\n" + details +
         "EQUIPE0ABB=PAN\nEQUIPE1ABB=OLY\nNBREPERIODE=4\nDUREE=10\n"
         "[0]\n4=0,Ann Able\n5=1,Bea Baker\n10=2,Cleo Carter\n12=9,Dana Dunn\n15=0,Eve Ellis\n0=1,Fay "
         "Ford\n00=2,Gia Grant\n"
         "[1]\n3=0,Hana Hart\n7=1,Ida Ivers\n8=2,Jo Jones\n11=9,Kim Knox\n22=0,Lea Lang\n" +
         periods;
}

inline Game gameOfText(const std::string& text) {
  Game game;
  readGame(ProfileText(text), game);
  return game;
}

inline GameState tallied(const Game& game) {
  GameState state;
  (void)Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]);
  return state;
}
inline std::shared_ptr<const CountedGame> counted(const Game& game) {
  return std::make_shared<const CountedGame>(CountedGame{game, tallied(game)});
}

// Keys and whole lines, as a file has them.
inline EventLines linesOf(const EventList& events) {
  EventLines lines;
  for (const GameEvent& event : events)
    lines[event.period].emplace_back(event.key, event.whole());
  return lines;
}
// What the periods of a file hold: keys and whole lines.
inline EventLines linesOfFile(ProfileStore& store, const std::string& path) {
  Game game;
  (void)GameFile(store, path).read(game);
  return linesOf(game.events);
}

} // namespace hooptab
