// A season as the window shows it: the catalogue, the statistics of the games selected from it, their leaders
// and their shots by zone. Made on a thread that may take its time, never changed afterwards, and kept alive
// by whoever shows a part of it.
#pragma once

#include "season/Leaders.h"
#include "season/Records.h"
#include "season/SeasonShots.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

class Season {
 public:
  // Cancelled, it holds some of the games only, and is worth nothing.
  Season(std::shared_ptr<const GameCatalogue> catalogue, std::vector<std::size_t> games,
         const SeasonStatistics::Shown& shown, const Texts& texts, const Qualification& minimum = {},
         SeasonRating ownRating = {}, const TaskWatch& watch = {});
  // The same season with the leaders that another minimum leaves, or another rating gives.
  Season(const Season& other, const Qualification& minimum, SeasonRating ownRating, const Texts& texts);
  Season(const Season&) = delete; // leaders refer to its statistics
  Season& operator=(const Season&) = delete;

  const GameCatalogue& catalogue() const { return *m_catalogue; }
  const SeasonStatistics& statistics() const { return *m_statistics; }
  const Qualification& minimum() const { return m_minimum; }
  const SeasonRating& ownRating() const { return m_ownRating; }
  const Leaders& leaders(SeasonView view) const { return m_leaders[static_cast<std::size_t>(view)]; }
  const ShotSums& shots() const { return m_shots; } // of all selected games

 private:
  void addLeaders(const Texts& texts);

  std::shared_ptr<const GameCatalogue> m_catalogue;
  std::shared_ptr<const SeasonStatistics> m_statistics;
  Qualification m_minimum;
  SeasonRating m_ownRating;
  std::vector<Leaders> m_leaders; // by view
  ShotSums m_shots;
};

// A player or line of a season, with what is told about him game by game. Cancelled, it lacks some of that.
struct SeasonPerson {
  SeasonPerson(std::shared_ptr<const Season> ofSeason, const SeasonRow& ofRow, bool isOfLine,
               const Texts& texts, const TaskWatch& watch = {});

  std::shared_ptr<const Season> season;
  SeasonRow row;
  bool isLine;
  std::vector<GameResult> results;
  Records records;
  std::optional<ShotSums> shots; // of a player; a game does not keep which line a shot belongs to
};

} // namespace hooptab
