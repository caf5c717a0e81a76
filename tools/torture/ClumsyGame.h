// A recorded game played once more by a clumsy hand: chooses where it slips, compares the file after every
// event with what was meant, counts what differs by whether the screen told it, and brings it right as a
// user would, so that the game can go on.
#pragma once

#include "Amount.h"
#include "ClumsyHand.h"
#include "Meaning.h"
#include "Occasions.h"
#include "tools/replay/Replay.h"

namespace hooptab {

// A difference that no key or click has mended: the game is over for this hand.
struct Unmended : ReplayFailure {
  using ReplayFailure::ReplayFailure;
};

class ClumsyGame : public Replay {
 public:
  // All must outlive it.
  ClumsyGame(const Game& original, const hooptab::Table& table, ClumsyHand& hand, Dice& dice, Screen& screen,
             const Amount& amount, SlipCounts& counts);

  // Stops the clock, so that one can leave, where the time was up before the end. Whether it was the end.
  bool stopForToday();
  // Whether the file still differs from what was meant.
  [[nodiscard]] Meaning::Difference difference();
  int events() const { return m_meaning.events(); } // meant so far

 protected:
  bool goesOn() override;
  void enter(const GameEvent& event, std::size_t index) override;
  void record(const GameEvent& event) override;
  void buzzed() override;

 private:
  [[nodiscard]] Slip choose(const GameEvent& event, std::size_t index);
  [[nodiscard]] std::optional<OnCourt> substitutionAhead(const GameEvent& event) const;
  [[nodiscard]] bool isStartBehindHalves(const GameEvent& event) const;
  void substituteByHalves(const GameEvent& event, const OnCourt& wanted);
  void pauseByHeldSpace();
  void undoTwice();
  void begin(Slip slip);
  void judge(const std::string& failure);
  [[nodiscard]] Meaning::Difference settled();
  void tell(const std::string& words);
  void mend();
  void mendOnce(const Meaning::Difference& wrong);
  void takeBack();
  void returnToWindow();

  ClumsyHand& m_hand;
  Dice& m_dice;
  Screen& m_screen;
  const Amount& m_amount;
  SlipCounts& m_counts;
  Occasions m_occasions;
  Meaning m_meaning;
  Slip m_slip = Slip::None;
  OnCourt m_courtBefore = {}; // a substitution by halves
  std::size_t m_index = 0;    // of the event that is being played
  bool m_isEntered = false;   // the second of two free throws, with the first
  bool m_isPutOff = false;    // a substitution was made later than in the original
  bool m_isCutShort = false;
  std::string m_runningCaption; // of START, while the clock runs
};

} // namespace hooptab
