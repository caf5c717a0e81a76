// Enters by mouse, as one does at the table: a click on the court or a button of the panel; the questions
// after a shot in turn by jersey and by click; one or two who come by substitution mode, more in the panel
// for several, with a line that has played before where there is one. Space turns the clock.
#pragma once

#include "CourtPixel.h"
#include "Hand.h"

#include <optional>

namespace hooptab {

class MouseHand : public Hand {
 public:
  explicit MouseHand(const Table& table);

  void prepare() override;
  void toggleClock() override;
  void switchSides() override;
  void returnToEndedPeriod() override;
  std::string record(const GameEvent& event) override;
  std::string substitute(const OnCourt& wanted) override;

 private:
  void click(const std::string& control, Person::Button button = Person::Button::Left);
  // Closes the question that lies over the place.
  void clearAway(int x, int y);
  [[nodiscard]] std::optional<int> slotOf(const GameEvent& event);
  [[nodiscard]] int entryOf(const GameEvent& event) const;
  std::string recordOnBench(const GameEvent& event);
  std::string shoot(const GameEvent& event, int slot);
  std::optional<std::string> answerQuestion(const GameEvent& event);
  void substituteOneByOne(const OnCourt& wanted);
  bool substituteSeveral(const OnCourt& wanted); // whether a known line was of use
  void waitForCount(std::size_t team, int count);
  bool takeKnownLine(std::size_t team, unsigned wanted);

  Table m_table;
  ZoneMap m_zones;
  bool m_isSwitched = false;
  bool m_typesNext = true;
};

} // namespace hooptab
