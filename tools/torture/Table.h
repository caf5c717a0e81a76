// A scorer's table under torture: the program in a window with a game open for input, made free throws of one
// player clicked one by one, and what the game's files hold of them.
#pragma once

#include "game/GameFile.h"
#include "tools/replay/Person.h"
#include "tools/replay/Program.h"

#include <memory>
#include <string>
#include <vector>

namespace hooptab {

// A new game in that file, with five on court for each team.
void makeGame(const std::string& path);
// The made free throws that a game's file holds, as every reader counts them; -1 where it is no game.
[[nodiscard]] int pointsIn(const std::string& path);

class ScorersTable {
 public:
  // On the display of the environment. `wrapper` comes before the program's own command line; a name with a
  // path.
  ScorersTable(const std::string& program, const std::string& programFolder, const std::string& game,
               std::vector<std::string> wrapper = {});

  void openGame();
  void openNewGame(); // which asks for both fives; they come as its events tell them
  void score();       // one click; returns at once
  // Until the window shows so many points. A ReplayFailure when it does not.
  void waitForPoints(int points);
  [[nodiscard]] int shownPoints();
  Program& program() { return *m_program; }
  Person& person() { return *m_person; }
  [[nodiscard]] int leave(); // its exit status

 private:
  void askForGame();
  std::string m_game;
  std::unique_ptr<Program> m_program;
  std::unique_ptr<Person> m_person;
  Program::Place m_button;
};

} // namespace hooptab
