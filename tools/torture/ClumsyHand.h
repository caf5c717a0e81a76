// The hand at the mouse on a bad day: enters what it is told to, and makes one slip on the way when it is
// armed with one and the occasion comes. Answers questions by numbers alone, and looks at the screen after a
// slip as anybody would.
#pragma once

#include "Dice.h"
#include "Screen.h"
#include "Slip.h"
#include "game/Side.h"
#include "recording/Slot.h"
#include "tools/replay/MouseHand.h"

namespace hooptab {

class ClumsyHand : public MouseHand {
 public:
  // All must outlive it.
  ClumsyHand(const hooptab::Table& table, Dice& dice, Screen& screen)
      : MouseHand(table), m_dice(dice), m_screen(screen) {}

  // For what is entered next; None disarms.
  void arm(Slip slip);
  bool hasSlipped() const { return m_hasSlipped; } // since it was armed

  // A substitution in two halves; these only leave, and the others come later.
  void beginSubstitution(const OnCourt& before, const OnCourt& wanted);
  void endSubstitution(const OnCourt& before, const OnCourt& wanted);
  // A turnover for whoever stands there.
  void actByMistake(Slot slot);
  void hitSpace() { pressClock(); }

 protected:
  void press(const Mark& mark) override;
  void typeAnswer(const std::string& form, const std::string& jersey) override;
  bool clicksAnswer() override { return false; }
  void pressClock() override;

 private:
  void slipped();
  void pressAgain(const Mark& mark, std::chrono::milliseconds behind);
  void clickOpeningQuestion(const Mark& mark);
  void pressBeside();
  void pressGap(Slot slot);
  void pressLine(Slot slot);
  void pressPlate(Side team);
  [[nodiscard]] std::string wrongNumber(const std::string& jersey);
  void typeByHeart(const std::string& digits);
  void lookAndAnswer(const std::string& form, const std::string& jersey);

  Dice& m_dice;
  Screen& m_screen;
  Slip m_armed = Slip::None;
  bool m_hasSlipped = false;
};

} // namespace hooptab
