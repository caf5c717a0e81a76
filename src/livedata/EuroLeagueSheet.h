// A game laid out as EuroLeague's files have it, for the writers: the rows of the play-by-play in order, with
// numbers and running score, the codes and ids that everything goes by, and what the rows count to.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/ScoreFlow.h"
#include "livedata/EuroLeagueKinds.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

struct EuroLeaguePlay {
  const EuroLeagueKind* kind = nullptr;
  int number = 0;
  int period = 1;
  int centiseconds = 0;
  Doer doer = {};
  std::string words = {};             // PLAYINFO
  const ForeignEvent* shot = nullptr; // where it is one
  PerSide<int> score = {};            // after it
  bool isOfSecondChance = false;      // a shot after an offensive rebound
  bool isOfTurnover = false;          // a shot after a turnover of the others
};

class EuroLeagueSheet {
 public:
  // Keeps pointers into the game.
  explicit EuroLeagueSheet(const ForeignGame& game);

  [[nodiscard]] const std::vector<EuroLeaguePlay>& plays() const { return m_plays; }
  [[nodiscard]] const std::string& code(Side team) const { return m_codes[team]; }
  // Empty for a team and for nobody.
  [[nodiscard]] std::string id(const Doer& doer) const;
  // What the events count to, by the names of official numbers; of the team itself where there is no player.
  [[nodiscard]] int count(const Doer& doer, std::string_view name) const;
  [[nodiscard]] bool isOnCourt(const Doer& player) const;
  // As many as there are, at least the quarters.
  [[nodiscard]] const std::vector<int>& pointsOfPeriods(Side team) const { return m_points[team]; }

 private:
  void nameTeams();
  void namePlayers(Side team);
  void take(const ForeignEvent& event);
  void takePlay(const ForeignEvent& event);
  void beginPeriod(int period);
  void endPeriod();
  EuroLeaguePlay& add(const EuroLeagueKind& kind, const ForeignEvent& event, const Doer& doer);
  void addMarker(EuroLeagueRow row, int centiseconds);
  void countShot(const ForeignEvent& event, EuroLeaguePlay& play);

  const ForeignGame& m_game;
  std::vector<EuroLeaguePlay> m_plays;
  PerSide<std::string> m_codes = {};
  PerSide<std::vector<std::string>> m_ids = {};
  // By team, none where it was nobody, and player.
  std::map<std::pair<std::optional<Side>, int>, std::map<std::string_view, int>> m_counts;
  PerSide<std::set<int>> m_onCourt = {};
  PerSide<std::vector<int>> m_points = {};
  std::vector<ShotOrigin> m_origins; // by event
  PerSide<int> m_score = {};
  int m_period = 0;
  bool m_hasEnded = true; // the period
};

} // namespace hooptab
