// A made-up game in the terms of other systems, for tests that need files of theirs.
#pragma once

#include "exchange/GameReading.h"
#include "game/Tally.h"
#include "support/TextGame.h"

#include <string>

namespace hooptab {

// Finished, with a score of its own: 2 points of the visitors for each of `baskets`. Both teams shoot, as the
// files of shots alone name no team that does not.
inline ForeignGame madeGame(int baskets = 1) {
  std::string events = "[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n"
                       "2=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n3=10:00,DEPART\n";
  for (int i = 0; i < baskets; ++i)
    events += std::to_string(i + 4) + "=09:00,GFG,0-4,30,100\n";
  events += "80=08:30,GFGA,1-3,60,100\n";
  events += "90=00:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";
  const std::string text =
      textOfGame(events, "DATE=2026-03-01\nTERMINE=1\nEQUIPE0NOM=Pandas\nEQUIPE1NOM=Olives\n");
  const Game own = gameOfText(text);
  ForeignGame out = foreignGameOf({own, tallied(own)}, ProfileText(text));
  out.id = "0012300" + std::to_string(baskets);
  int number = 200;
  for (ForeignTeam& team : out.teams) {
    team.id = std::to_string(number);
    for (ForeignPlayer& player : team.players)
      player.id = std::to_string(++number * 100);
  }
  return out;
}

} // namespace hooptab
