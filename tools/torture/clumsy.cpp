// torture_clumsy PROGRAM [GAMES|SECONDSs] [SEED]: real games are recorded in the window by a hand that slips:
// wrong digits, double presses, keys held down, half substitutions. After every event the file must hold what
// was meant, or the screen must have told why not. One line of counts; exit status 1 when a difference came
// without a word, 77 where there are no real games.
#include "ClumsyGame.h"
#include "Table.h"
#include "support/TemporaryFolder.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

using namespace hooptab;
namespace fs = std::filesystem;

namespace {

constexpr int kSkipped = 77;

struct Outcome {
  SlipCounts counts;
  int games = 0;
  int abandoned = 0;
  int events = 0;
  int status = 0; // of the program, the worst
};

// In an order that the seed decides.
std::vector<fs::path> realGames(unsigned seed) {
  std::vector<fs::path> games;
  std::error_code isMissing;
  for (const auto& entry : fs::directory_iterator(fs::path(HOOPTAB_SHARED) / "games", isMissing)) {
    if (entry.path().extension() == ".GAM")
      games.push_back(entry.path());
  }
  std::ranges::sort(games);
  std::mt19937 random(seed);
  std::ranges::shuffle(games, random);
  return games;
}

Game read(const fs::path& path) {
  FileSystem files;
  ProfileStore store(files);
  Game game;
  if (GameFile(store, path.string()).read(game) != GameFileProblem::None)
    throw ReplayFailure("the game cannot be read: " + path.string());
  return game;
}

void makeEmpty(const std::string& path, const Game& original) {
  FileSystem files;
  ProfileStore store(files);
  GameDetails details = original.details;
  details.isFinished = false;
  if (GameFile(store, path)
          .create(details, original.roster[Side::Visitor].players(), original.roster[Side::Home].players()) !=
      GameFileProblem::None)
    throw ReplayFailure("the game cannot be made: " + path);
}

void compareAtEnd(ClumsyGame& game, SlipCounts& counts) {
  const Meaning::Difference wrong = game.difference();
  if (!wrong)
    return;
  std::cout << "SILENT, at the end: " << wrong.words << '\n';
  ++counts.silent[static_cast<std::size_t>(Slip::None)];
}

void play(const std::string& program, const fs::path& path, const Amount& amount, Dice& dice,
          Outcome& outcome) {
  const Game original = read(path);
  const TemporaryFolder folder;
  fs::create_directory(folder.path("program"));
  const std::string copy = folder.path("T.GAM");
  makeEmpty(copy, original);
  ScorersTable scorers(program, folder.path("program"), copy);
  Recorded recorded(copy);
  Camera camera("");
  Screen screen(scorers.program());
  ClumsyHand hand({scorers.program(), scorers.person(), recorded, camera}, dice, screen);
  ClumsyGame game(original, {scorers.program(), scorers.person(), recorded, camera}, hand, dice, screen,
                  amount, outcome.counts);
  try {
    scorers.openNewGame();
    game.play();
    const bool isWhole = game.stopForToday();
    if (isWhole)
      game.declareOver();
    outcome.status = std::max(outcome.status, scorers.leave());
    if (isWhole) // of one that is cut short nobody can tell where its clock was meant to stand
      compareAtEnd(game, outcome.counts);
  } catch (const ReplayFailure& failure) {
    ++outcome.abandoned;
    std::cout << "abandoned, " << path.stem().string() << ": " << failure.what() << std::endl;
  }
  outcome.events += game.events();
}

int run(const std::string& program, const Amount& amount) {
  const std::vector<fs::path> games = realGames(amount.seed());
  if (games.empty()) {
    std::cout << "skipped: there are no real games\n";
    return kSkipped;
  }
  Dice dice(amount.seed());
  Outcome outcome;
  for (; amount.goesOn(outcome.games); ++outcome.games)
    play(program, games[static_cast<std::size_t>(outcome.games) % games.size()], amount, dice, outcome);
  const SlipCounts& counts = outcome.counts;
  std::cout << "clumsy: seed " << amount.seed() << ", games " << outcome.games << ", of them abandoned "
            << outcome.abandoned << ", events meant " << outcome.events << ", slips "
            << SlipCounts::words(counts.made) << ", silent differences " << SlipCounts::words(counts.silent)
            << ", said differences " << SlipCounts::words(counts.said) << ", exit status " << outcome.status
            << '\n';
  const bool isFine = SlipCounts::sum(counts.made) > 0 && SlipCounts::sum(counts.silent) == 0 &&
                      outcome.abandoned == 0 && outcome.status == 0;
  return isFine ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
  try {
    constexpr int kGames = 3;
    return run(argv[1], Amount(wordsBehind(2, argc, argv), kGames));
  } catch (const std::exception& failure) {
    std::cout << "FAILED: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
