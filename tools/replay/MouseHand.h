// Enters by mouse, as one does at the table: a click on the court or a button of the panel; the questions
// after a shot by jersey, and now and then by a click; one or two who come by substitution mode, more in the
// panel for several, with a line that has played before where there is one. Space turns the clock.
#pragma once

#include "game/Side.h"
#include "recording/Slot.h"
#include "tools/replay/CourtPixel.h"
#include "tools/replay/Hand.h"

#include <optional>
#include <vector>

namespace hooptab {

class MouseHand : public Hand {
 public:
  explicit MouseHand(const Table& table);

  void prepare() override;
  void clearQuestion() override;
  void switchSides() override;
  void returnToEndedPeriod() override;
  std::string record(const GameEvent& event) override;
  std::string substitute(const OnCourt& wanted) override;
  [[nodiscard]] std::optional<Slot> slotOf(const GameEvent& event);

 protected:
  // A place to press, of the screen; what two presses in a row mean depends on the kind.
  struct Mark {
    int x = 0, y = 0;
    Person::Button button = Person::Button::Left;
    EventCode kind = EventCode::Unknown;
  };
  void pressClock() override;
  // Every press for a shot or an action of a panel.
  virtual void press(const Mark& mark);
  // With that form of the question open, to its end.
  virtual void typeAnswer(const std::string& form, const std::string& jersey);
  // So that not every question is answered by keys.
  [[nodiscard]] virtual bool clicksAnswer();
  void press(const std::string& control, EventCode kind, Person::Button button = Person::Button::Left);
  void click(const std::string& control, Person::Button button = Person::Button::Left);
  // Closes what lies over the place: a question, or the card of an ended period.
  void clearAway(int x, int y);
  // Of a panel, as far as they are shown: its buttons and its court.
  [[nodiscard]] std::vector<Program::Place> targetsOf(Slot slot);
  void clickRoster(Side team, unsigned entries);
  Table& table() { return m_table; }
  const ZoneMap& zones() const { return m_zones; }
  [[nodiscard]] bool playsRight(Side team) const { return (team == Side::Home) != m_isSwitched; }

 private:
  [[nodiscard]] int entryOf(const GameEvent& event) const;
  std::string recordOnBench(const GameEvent& event);
  std::string shoot(const GameEvent& event, Slot slot);
  std::optional<std::string> answerQuestion(const GameEvent& event);
  void clickAnswer(const std::string& button);
  void substituteOneByOne(const OnCourt& wanted);

  Table m_table;
  ZoneMap m_zones;
  bool m_isSwitched = false;
  int m_answers = 0;
  Mark m_lastMark;
};

} // namespace hooptab
