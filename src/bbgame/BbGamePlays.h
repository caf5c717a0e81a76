// Reads the plays of a <bbgame> into a game of which teams and rules are known already: who of a team is
// meant, what the words of a play mean, and which play goes with which. Whoever is in no list of players is
// added to his team.
#pragma once

#include "foreign/ForeignGame.h"

#include <pugixml.hpp>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class BbGamePlays {
 public:
  explicit BbGamePlays(ForeignGame& game) : m_game(game) {}

  // The player behind the last of his team, and how plays call him. False: nobody has that many, he is passed
  // over.
  bool enlist(Side team, ForeignPlayer player, std::string_view callName);
  void read(const pugi::xml_node& bbgame);

 private:
  struct Row; // a play, taken apart

  void readPeriod(const pugi::xml_node& element, int number, bool isLast);
  void readPlay(const pugi::xml_node& element);
  void take(const Row& row);
  void takeShot(const Row& row);
  void takeRebound(const Row& row);
  void takeFoul(const Row& row);
  void takeFoulTaken(const Row& row);
  void takeTurnover(const Row& row);
  void takeTimeout(const Row& row);
  void takeSubstitution(const Row& row);
  void takeAssist(const Row& row);
  void takeBlock(const Row& row);
  void takeSteal(const Row& row);
  void passOver(const Row& row);
  void passOverDrawn();

  // The player of that number and name; the team itself where that is meant.
  [[nodiscard]] Doer find(std::optional<Side> team, const std::string& number, std::string_view callName);
  [[nodiscard]] int placeOf(Side team, const std::string& key) const;
  [[nodiscard]] ForeignEvent eventOf(EventCode code, const Doer& doer) const;
  // The last event of this clock that fits, by its place; -1: none.
  template <typename Fits>
  [[nodiscard]] int lastNow(Fits fits) const;
  void settleOneAndOnes();

  struct Drawn { // a foul, told before it
    int centiseconds = 0;
    Doer doer = {};
  };
  ForeignGame& m_game;
  int m_period = 1;
  int m_centiseconds = 0; // of the last play
  int m_missedShot = -1;  // the last shot of the period, where it was missed
  int m_statusPeriod = 0;
  std::optional<int> m_statusClock;
  // By number, by name and by both; kSeveral where two are called so.
  PerSide<std::map<std::string, int>> m_places = {};
  std::vector<int> m_oneAndOnes; // fouls
  std::optional<Drawn> m_drawn;
};

} // namespace hooptab
