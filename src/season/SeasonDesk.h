// What the season window works on at present, and what it offers: the scanned folder, the criteria in force,
// the games that they leave, and the statistics made of them. Shows nothing and reads no files.
#pragma once

#include "season/Season.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// All that the user chooses: which games, and which players of them.
struct SeasonChoice {
  GameCriteria games;
  std::optional<int> position;

  friend bool operator==(const SeasonChoice&, const SeasonChoice&) = default;
};

class SeasonDesk {
 public:
  // A folder was scanned: the criteria stay in force, but for a team that did not play here; statistics of
  // the folder before are gone.
  void takeCatalogue(std::shared_ptr<const GameCatalogue> catalogue);
  void apply(const SeasonChoice& choice);

  bool hasCatalogue() const { return m_catalogue != nullptr; }
  const std::shared_ptr<const GameCatalogue>& catalogue() const { return m_catalogue; }
  const SeasonChoice& choice() const { return m_choice; }
  // Places in the catalogue of the games that the criteria leave.
  const std::vector<std::size_t>& listed() const { return m_listed; }
  std::optional<SeasonId> chosenTeam() const;
  const std::shared_ptr<const Season>& season() const { return m_season; }
  // By zone in the games listed: of a team of that game, or without one of all teams. Nothing where no game
  // is listed, or none of that team.
  [[nodiscard]] std::optional<ShotSums> shotsBeside(const GameDetails& game, std::optional<Side> team) const;

  bool canApply(const SeasonChoice& choice) const { return hasCatalogue() && choice != m_choice; }
  bool canGenerate() const { return !m_listed.empty(); }
  // The statistics are of other games than the list shows.
  bool isOutdated() const;
  // To be called on any thread, with what the desk holds now.
  struct Order {
    std::shared_ptr<const GameCatalogue> catalogue;
    std::vector<std::size_t> games;
    SeasonStatistics::Shown shown;
    Qualification minimum;
    SeasonRating ownRating;

    // Null when it was cancelled.
    [[nodiscard]] std::shared_ptr<const Season> carryOut(const Texts& texts,
                                                         const TaskWatch& watch = {}) const;
  };
  Order order() const {
    return {m_catalogue, m_listed, {m_choice.games.team, m_choice.position}, m_minimum, m_ownRating};
  }
  const Qualification& minimum() const { return m_minimum; }
  // Also of the statistics that were made.
  void setMinimum(const Qualification& minimum, const Texts& texts);
  const SeasonRating& ownRating() const { return m_ownRating; }
  void setOwnRating(SeasonRating rating, const Texts& texts); // likewise
  // What was ordered is what the statistics are of.
  void takeSeason(std::shared_ptr<const Season> season, const Order& order, const Texts& texts);

 private:
  void makeAgain(const Texts& texts); // the statistics' leaders

  std::shared_ptr<const GameCatalogue> m_catalogue;
  SeasonChoice m_choice;
  std::vector<std::size_t> m_listed;
  std::shared_ptr<const Season> m_season;
  SeasonStatistics::Shown m_shown;
  Qualification m_minimum;
  SeasonRating m_ownRating;
};

} // namespace hooptab
