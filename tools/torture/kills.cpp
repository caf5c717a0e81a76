// torture_kills PROGRAM [KILLS|SECONDSs] [SEED]: a game is recorded by clicks, the program killed at a random
// moment among them, and started again on the same game. What the window had shown must be in the file, never
// more than was clicked, and the lock that was left behind must keep nobody out. One line of counts.
#include "Amount.h"
#include "Table.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <filesystem>
#include <iostream>
#include <random>

using namespace hooptab;

namespace {

int run(const std::string& program, const Amount& amount) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path("program"));
  const std::string game = folder.path("T.GAM");
  makeGame(game);
  std::mt19937 random(amount.seed());
  const auto roll = [&random](int below) { return std::uniform_int_distribution(0, below - 1)(random); };
  int points = 0;
  int lost = 0;
  int clicks = 0;
  int done = 0;
  for (; amount.goesOn(done); ++done) {
    auto table = std::make_unique<ScorersTable>(program, folder.path("program"), game);
    table->openGame();
    table->waitForPoints(points);
    const int shown = roll(6);
    for (int click = 0; click < shown; ++click)
      table->score();
    table->waitForPoints(points + shown);
    const int more = roll(4); // that nobody has seen yet
    for (int click = 0; click < more; ++click)
      table->score();
    std::this_thread::sleep_for(std::chrono::microseconds(roll(30'000)));
    table.reset(); // which kills it
    const int found = pointsIn(game);
    lost += found < points + shown || found > points + shown + more ? 1 : 0;
    clicks += shown + more;
    points = std::max(found, 0);
  }
  std::cout << "kills: seed " << amount.seed() << ", kills " << done << ", clicks " << clicks
            << ", in the file at the end " << points << ", wrong after a kill " << lost << '\n';
  return lost == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
  try {
    constexpr int kKills = 200;
    return run(argv[1], Amount(wordsBehind(2, argc, argv), kKills));
  } catch (const std::exception& failure) {
    std::cout << "FAILED: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
