// What an assistant on the bench of a team is told of the running game, in words and figures: the run, what
// happened since the last time-out, who is in foul trouble, the five and the bench, what costs most, and
// which fives do well. Says what needs the coach now; lays out nothing.
#pragma once

#include "assistant/BenchRecord.h"
#include "game/Side.h"
#include "game/TimeOuts.h"
#include "settings/Texts.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct BenchFigures {
  static constexpr int kAlarmingPoints = 7; // without answer, or behind since the last time-out
  static constexpr int kLongStay = 8 * 60;  // seconds on court without a rest
  static constexpr std::size_t kBestAndWorst = 2;

  struct Team {
    std::string name; // abbreviation
    std::uint32_t colour = 0;
    int points = 0;
    int fouls = 0;         // of the period
    std::string foulWords; // what they serve: "2 to give"
    bool isInBonus = false;
    std::optional<TimeOuts> timeOuts = {}; // none where the rules of the game name none
  };
  struct Tile {
    std::string title;
    std::string figure = {};
    std::vector<std::string> lines = {};
    bool isAlarm = false;
  };
  struct Player {
    std::string jersey;
    std::string name; // the family name
    int fouls = 0;
    bool isInTrouble = false;
    bool isOut = false;
    bool hasPlayed = false;
    std::string minutes;
    int plusMinus = 0;
    int points = 0;
    std::string stay;    // on court or on the bench, until now; a dash for one who was never on court
    bool isLong = false; // on court
  };
  struct Five {
    std::string jerseys;
    std::string minutes;
    int plusMinus = 0;
    std::string net; // "+12", or that there were too few possessions
    bool hasNet = false;
    bool isNow = false;
  };
  struct Factor {
    std::string name;
    std::string ours, theirs;              // in percent, or for each hundred
    double ourLength = 0, theirLength = 0; // of 1
    bool costsMost = false;
  };

  Team us, them;
  std::string clock, period;
  bool isRunning = false;
  Tile run, sinceTimeOut, foulTrouble;
  std::vector<Player> five, bench, theirFive;
  std::string thisFive; // its time and net rating, in words
  std::vector<Factor> factors;
  std::string factorsOf; // what they are counted from: the whole game, or since when
  // The best and the worst of those who played long enough, and last the one that is on court.
  std::vector<Five> fives;

  [[nodiscard]] static BenchFigures of(const LiveMoment& game, const BenchRecord& record, Side us,
                                       const Texts& texts);
};

} // namespace hooptab
