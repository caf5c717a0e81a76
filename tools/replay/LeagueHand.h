// Enters by mouse what a league's sheet asks for as well: who drew a foul, its free throws on the strip,
// blocks and steals by their questions, time-outs, the arrow, and what a team does.
#pragma once

#include "game/Side.h"
#include "tools/replay/MouseHand.h"

namespace hooptab {

class LeagueHand : public MouseHand {
 public:
  using MouseHand::MouseHand;

  std::string record(const GameEvent& event) override;

 private:
  std::string foul(const GameEvent& event);
  std::string ofTeam(const GameEvent& event);
  std::optional<std::string> freeThrow(const GameEvent& event);
  std::optional<std::string> answerByClick(const GameEvent& event);
  [[nodiscard]] bool wasInBonus(Side team);
  [[nodiscard]] std::string lineOf(const GameEvent& event);
  void clickJersey(const std::string& form, int first, int count, std::string_view jersey);
};

} // namespace hooptab
