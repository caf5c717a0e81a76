// What a game is recorded with, for tests of the windows that show it: on a disk of its own, with a clock
// that the test sets.
#pragma once

#include "game/Side.h"
#include "recording/LiveGame.h"
#include "recording/ManualTime.h"
#include "support/TextGame.h"
#include "support/WindowRoom.h"

#include <QApplication>
#include <QSignalSpy>

namespace hooptab {

template <class Disk = FileSystem>
class LiveRoom : public WindowRoom<Disk> {
 protected:
  LiveRoom() {
    this->settings.twoPointColour = kFirstColours.twoPoints;
    this->settings.boxColour = kFirstColours.box;
    this->settings.threePointColour = kFirstColours.threePoints;
    this->settings.buttonColour = kFirstColours.buttons;
  }
  // Four periods of ten minutes; both teams have these players, "4=0,Ann\n5=1,Bea".
  static void makeGame(const std::string& path, const std::string& listed, GameDetails details = {}) {
    const Game game = gameOfText("[DETAILS]\nVERSION=2.0\n[0]\n" + listed);
    const std::vector<RosterPlayer>& players = game.roster[Side::Visitor].players();
    details.periods = 4;
    details.minutesPerPeriod = 10;
    FileSystem plain;
    ProfileStore own{plain};
    ASSERT_EQ(GameFile(own, path).create(details, players, players), GameFileProblem::None);
  }
  static constexpr unsigned kFive = 0b111110; // entries 1 to 5

  ManualTime time;
};

} // namespace hooptab
