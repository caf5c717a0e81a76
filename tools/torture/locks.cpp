// torture_locks PROGRAM OTHERDISPLAY [ROUNDS|SECONDSs] [SEED]: two computers, by two host names, and one
// game. The first records it, the second opens it and only reads. Then the first one hangs, is killed or
// leaves; the second waits for its sign of life, takes the game over and records; the first, where it comes
// back, notices and writes no more. One line of counts; 77 where no second host name can be had.
#include "Amount.h"
#include "Table.h"
#include "support/TemporaryFolder.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>

using namespace hooptab;

namespace {

constexpr int kSkipped = 77;
constexpr int kPatience = 90; // seconds: a lock is watched for 25, and the machine may be busy

struct Counts {
  int rounds = 0;
  int taken = 0;
  int noticed = 0;
  int wrong = 0;
};

class TwoComputers {
 public:
  TwoComputers(std::string program, std::string otherDisplay, unsigned seed)
      : m_program(std::move(program)), m_displays{std::getenv("DISPLAY"), std::move(otherDisplay)},
        m_random(seed) {}

  void play(Counts& counts) {
    const TemporaryFolder folder;
    for (const char* name : {"first", "second"})
      std::filesystem::create_directory(folder.path(name));
    const std::string game = folder.path("T.GAM");
    makeGame(game);
    auto first = sitDown(0, folder.path("first"), game);
    int points = scoreSome(*first, 0);
    auto second = sitDown(1, folder.path("second"), game);
    second->waitForPoints(points);
    if (!second->program().isShown("lblREADONLY"))
      throw ReplayFailure("both record");
    second->score(); // and nothing happens
    points = scoreSome(*first, points);
    second->waitForPoints(points); // it follows

    const int way = std::uniform_int_distribution(0, 2)(m_random);
    if (way == 0)
      ::kill(first->program().process(), SIGSTOP);
    else if (way == 1)
      first.reset();
    else if (first->leave() != 0)
      throw ReplayFailure("the first did not leave");
    waitUntil(
        "the second is offered the game", [&] { return !second->program().where("MDI").isActive; },
        kPatience);
    waitUntil("the second records", [&] {
      second->person().press("y");
      std::this_thread::sleep_for(std::chrono::milliseconds(300)); // the question may just be coming up
      return !second->program().isShown("lblREADONLY");
    });
    ++counts.taken;
    points = scoreSome(*second, points);
    if (way == 0) {
      ::kill(first->program().process(), SIGCONT);
      setDisplay(0);
      first->score();
      waitUntil("the first notices", [&] { return first->program().isShown("lblNOTONDISK"); });
      ++counts.noticed;
      points = scoreSome(*second, points);
    }
    if (pointsIn(game) != points)
      ++counts.wrong;
  }

 private:
  void setDisplay(std::size_t computer) { ::setenv("DISPLAY", m_displays[computer].c_str(), 1); }
  std::unique_ptr<ScorersTable> sitDown(std::size_t computer, const std::string& folder,
                                        const std::string& game) {
    setDisplay(computer);
    const std::string name = computer == 0 ? "FIRST" : "SECOND";
    auto table = std::make_unique<ScorersTable>(
        m_program, folder, game,
        std::vector<std::string>{"/usr/bin/unshare", "--uts", "/bin/sh", "-c",
                                 "hostname " + name + " && exec \"$@\"", "sh"});
    table->openGame();
    return table;
  }
  int scoreSome(ScorersTable& table, int points) {
    const int clicks = std::uniform_int_distribution(1, 4)(m_random);
    for (int click = 0; click < clicks; ++click)
      table.score();
    table.waitForPoints(points + clicks);
    return points + clicks;
  }

  std::string m_program;
  std::string m_displays[2];
  std::mt19937 m_random;
};

int run(const std::string& program, const std::string& display, const Amount& amount) {
  if (std::system("unshare --uts hostname FIRST 2>/dev/null") != 0) {
    std::cout << "skipped: no second host name can be had\n";
    return kSkipped;
  }
  TwoComputers computers(program, display, amount.seed());
  Counts counts;
  for (; amount.goesOn(counts.rounds); ++counts.rounds) {
    try {
      computers.play(counts);
    } catch (const std::exception& failure) {
      ++counts.wrong;
      std::cerr << "round " << counts.rounds << ": " << failure.what() << '\n';
    }
  }
  std::cout << "locks: seed " << amount.seed() << ", rounds " << counts.rounds << ", taken over "
            << counts.taken << ", loss noticed " << counts.noticed << ", wrong " << counts.wrong << '\n';
  return counts.wrong == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
  try {
    constexpr int kRounds = 30;
    return run(argv[1], argv[2], Amount(wordsBehind(3, argc, argv), kRounds));
  } catch (const std::exception& failure) {
    std::cout << "FAILED: " << failure.what() << '\n';
    return EXIT_FAILURE;
  }
}
