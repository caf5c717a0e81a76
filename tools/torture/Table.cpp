#include "Table.h"

#include "game/Tally.h"
#include "storage/Module1.h"

namespace hooptab {

void makeGame(const std::string& path) {
  FileSystem files;
  ProfileStore store(files);
  GameDetails details;
  details.periods = 4;
  details.minutesPerPeriod = 10;
  details.abbreviation[Side::Visitor] = "PAN";
  details.abbreviation[Side::Home] = "OLY";
  const std::vector<RosterPlayer> players = {{"4", 0, "Ann Able"},    {"5", 1, "Bea Baker"},
                                             {"6", 2, "Cleo Carter"}, {"7", 2, "Dana Dunn"},
                                             {"8", 1, "Eve Ellis"},   {"9", 1, "Fay Ford"}};
  GameFile file(store, path);
  if (file.create(details, players, players) != GameFileProblem::None ||
      file.append(1, 600, 2, {stopText("IN-04-05-06-07-08", "IN-04-05-06-07-08")}) != GameFileProblem::None)
    throw ReplayFailure("the game cannot be made: " + path);
}

int pointsIn(const std::string& path) {
  FileSystem files;
  ProfileStore store(files);
  Game game;
  if (GameFile(store, path).read(game) != GameFileProblem::None)
    return -1;
  GameState state;
  (void)Tally::run(state, game.events, game.roster[Side::Visitor], game.roster[Side::Home]);
  return state.points(Side::Visitor);
}

ScorersTable::ScorersTable(const std::string& program, const std::string& programFolder,
                           const std::string& game, std::vector<std::string> wrapper)
    : m_game(game) {
  wrapper.insert(wrapper.end(), {program, "--rehearsal", "--folder", programFolder});
  m_program = std::make_unique<Program>(wrapper);
  m_person = std::make_unique<Person>();
}

void ScorersTable::askForGame() {
  m_program->waitUntilActive("MDI");
  m_person->press("ctrl+shift+o");
  m_program->waitUntilActive("fileNameEdit");
  m_person->type(m_game);
  m_person->press("Return");
}

void ScorersTable::openGame() {
  askForGame();
  m_program->waitUntilActive("frmLIVE");
}

void ScorersTable::openNewGame() {
  askForGame();
  m_program->waitUntilActive("frmSUBST/cmdCANCEL");
  m_person->press("Escape");
  m_program->waitUntilActive("frmLIVE");
}

void ScorersTable::score() {
  m_button = m_program->where("cmdBUTFT(0)"); // strips come and go above it
  m_person->clickAt(m_button);
}

int ScorersTable::shownPoints() {
  return Module1::leadingNumber(m_program->text("lblPTS0"));
}

void ScorersTable::waitForPoints(int points) {
  waitUntil("the window shows " + std::to_string(points) + " points",
            [&] { return shownPoints() == points; });
}

int ScorersTable::leave() {
  m_person->press("ctrl+q");
  return m_program->waitForEnd();
}

} // namespace hooptab
