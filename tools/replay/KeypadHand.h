// Enters by the keys of a numeric keypad alone, as one does who knows them by heart: number, action, team.
// Numbers without their zeros; what a question asks for by the number alone; who leaves with who comes for
// him, or five who come after all have left, where that is shorter.
#pragma once

#include "game/Side.h"
#include "keypad/KeypadAssignment.h"
#include "tools/replay/Hand.h"

#include <string_view>
#include <vector>

namespace hooptab {

class KeypadHand : public Hand {
 public:
  explicit KeypadHand(const Table& table) : m_table(table) {}

  void prepare() override;
  // Whose number is typed while a question is open is its answer.
  void clearQuestion() override;
  void switchSides() override;
  void returnToEndedPeriod() override;
  std::string record(const GameEvent& event) override;
  std::string substitute(const OnCourt& wanted) override;

 protected:
  void pressClock() override;

 private:
  void press(KeypadAction action);
  void confirm(Side team);
  void type(const std::string& digits);
  [[nodiscard]] std::string numberOf(Side team, std::string_view jersey) const;
  [[nodiscard]] std::vector<std::string> numbersOf(Side team, unsigned entries) const;
  std::string shoot(const GameEvent& event);
  std::string answer(const GameEvent& event, const std::string& form);
  [[nodiscard]] bool isOffered(const GameEvent& event, const std::string& form);
  void exchange(Side team, const std::string& leaving, const std::string& arriving);
  void move(Side team, const std::vector<std::string>& numbers, KeypadAction action);

  Table m_table;
  KeypadAssignment m_keys = KeypadAssignment(firstKeypadKeyTexts());
};

} // namespace hooptab
