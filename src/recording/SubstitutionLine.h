// "Several at once" by numbers: what is typed, whom it can mean, and why it is not taken. A number is taken
// as soon as it cannot go on, else by a separator or Enter; whether its player leaves or comes follows from
// where he stands. Types are for one team at a time; a number that the other team alone has means that one's.
// Changes the choice, and knows no window.
#pragma once

#include "game/Side.h"
#include "recording/Substitution.h"
#include "settings/Texts.h"

#include <optional>
#include <string>

namespace hooptab {

class SubstitutionLine {
 public:
  // Begins with the main team. Both must outlive it.
  SubstitutionLine(const LiveGame& game, Substitution& choice);

  Side team() const { return m_team; }
  const std::string& typed() const { return m_typed; }
  // Whether the number of that player begins with what is typed.
  [[nodiscard]] bool fits(Side team, int player) const;
  bool isRefused() const { return m_refusal != Text::None; }
  // Why the number is not taken; else the names of whom it can mean, or with nothing typed what became of the
  // last number.
  [[nodiscard]] std::string words(const Texts& texts) const;

  void type(int digit);
  // Enough of this number: it is taken as it stands, or refused.
  void separate();
  void changeTeam();
  // The last digit; with nothing typed the last step of the choice, by number or by click.
  void takeBack();
  // Takes the number, or the only one that begins so. True: it was whole, and nothing is left to be looked
  // at.
  bool enter();

 private:
  static constexpr std::size_t kMostDigits = 4; // one more than any jersey: a slip is seen, and shown
  struct Player {
    Side team = Side::Visitor;
    int entry = 0;
  };
  [[nodiscard]] std::optional<Player> meant() const;
  [[nodiscard]] std::vector<Player> fitting() const;
  [[nodiscard]] std::string nameOf(const Player& player) const;
  void narrow();
  bool take(const std::optional<Player>& player);

  const LiveGame& m_game;
  Substitution& m_choice;
  Side m_team;
  std::string m_typed;
  Text m_refusal = Text::None;
  std::optional<Player> m_taken;
};

} // namespace hooptab
