// Writes what happened in a game as the rows of <plays>.
#pragma once

#include "foreign/ForeignGame.h"
#include "foreign/ScoreFlow.h"

#include <pugixml.hpp>

#include <string>
#include <vector>

namespace hooptab {

// "FAMILY,GIVEN", by which a play calls a player.
[[nodiscard]] std::string bbGameCallName(const ForeignPlayer& player);

class BbGamePlayRows {
 public:
  explicit BbGamePlayRows(const ForeignGame& game);
  // The rows of one period, behind what stands in it already.
  void write(int period, pugi::xml_node element);

 private:
  void writeEvent(std::size_t place, pugi::xml_node period);
  void writeJumpBall(const ForeignEvent& event, pugi::xml_node period) const;
  void writeDoer(const ForeignEvent& event, pugi::xml_node row) const;
  void writeShot(std::size_t place, pugi::xml_node row);
  void writePlace(const ForeignEvent& shot, pugi::xml_node row) const;
  void writeFoul(const ForeignEvent& foul, pugi::xml_node row) const;
  [[nodiscard]] const ForeignPlayer& playerOf(const Doer& doer) const;

  const ForeignGame& m_game;
  std::vector<ShotOrigin> m_origins; // by event
  std::vector<bool> m_isBlocked;
  PerSide<int> m_points = {};
};

} // namespace hooptab
