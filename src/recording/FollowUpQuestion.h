// Who assisted, who took the rebound, who drew the foul: whom the question after an event offers, and what a
// number typed into it means. A number is held whole: it is taken with its last digit only where nothing
// could follow, else by Enter; one that fits nobody who is offered stays, with the reason, and is never taken
// for another's. Knows no window.
#pragma once

#include "game/Side.h"
#include "recording/JerseyMatch.h"
#include "recording/LiveGame.h"
#include "recording/Slot.h"
#include "settings/Texts.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

class FollowUpQuestion {
 public:
  struct Choice {
    Slot slot;
    int player = 0; // entry
    std::string jersey = {};
    Side team() const { return slot.team(); }
  };
  // Who is asked for. The shooter is the one for a technical foul.
  enum class Asks { Assist, Rebound, DrawnBy, Shooter, Steal };
  // Who gets it.
  struct Answer {
    Side team = Side::Visitor;
    int player = 0;       // entry; 0: the team, and nobody in particular
    bool comesIn = false; // he stands on the bench, and it was forgotten that he came
    bool isOnCourt = true;
    friend bool operator==(const Answer&, const Answer&) = default;
  };
  // Why a number is not taken: a text, with the number for XXX and a team for YYY.
  struct Refusal {
    Text text = Text::None;
    std::string team = {};
    std::optional<Answer> stranger = std::nullopt; // who could be meant all the same
    bool canComeIn = false;
    friend bool operator==(const Refusal&, const Refusal&) = default;
  };
  // How one can go on from a refusal.
  enum class WayOut { AllTheSame, ComesIn };

  // The game must live until it is closed.
  void ask(const LiveGame& game, const LiveGame::FollowUps& followUps, Side team, int shooter,
           EventCode kind = EventCode::Unknown);

  Asks asks() const { return m_asks; }
  bool isAssist() const { return m_asks == Asks::Assist; }
  bool isRebound() const { return m_asks == Asks::Rebound; }
  Side shooterTeam() const { return m_shooterTeam; } // of whoever it happened to: shot, foul, turnover
  // Of one team in the order of the places on court; of a rebound the shooter's team first.
  const std::vector<Choice>& choices() const { return m_choices; }
  // What an answer is recorded as; Unknown for one that is a detail of the event.
  EventCode codeFor(const Answer& answer) const;
  // That it was the team's: of a rebound which one's. None where it can be nobody's but a player's.
  std::optional<Answer> teamOf(Side team) const;
  // Of a rebound, where the shot can have been blocked: for the next answer the defence is asked who did.
  bool canAskBlock() const { return m_canBlock; }
  bool isAskingBlock() const { return m_isBlock; }
  void askBlock(bool isOn);

  const std::string& typed() const { return m_typed; }
  // Places in choices() whose numbers begin so, and which of them Enter would take.
  const std::vector<FittingJersey>& fitting() const { return m_fitting; }
  std::optional<std::size_t> marked() const; // place in choices()
  const std::optional<Refusal>& refusal() const { return m_refusal; }
  std::optional<WayOut> markedWayOut() const { return m_wayOut; }
  [[nodiscard]] std::string reason(const Texts& texts) const; // empty without a refusal

  // Each returns the answer when there is one.
  std::optional<Answer> type(int digit);
  // What is marked, or whose number was typed; of two equal ones that of `team`, where it is given.
  std::optional<Answer> enter(std::optional<Side> team);
  std::optional<Answer> choose(std::size_t choice) const;
  std::optional<Answer> take(WayOut way) const;
  void takeBackDigit();
  void clearTyped();
  void moveMark(int step);

 private:
  void narrow();
  void refuse();
  [[nodiscard]] Text onBenchText() const;
  [[nodiscard]] bool canGoOn() const;
  [[nodiscard]] bool isOfOneTeam() const { return m_asks != Asks::Rebound || m_isBlock; }
  [[nodiscard]] Side teamAsked() const { // where only one is
    return isAssist() ? m_shooterTeam : otherSide(m_shooterTeam);
  }
  [[nodiscard]] Answer answer(const FittingJersey& fitting) const;

  const LiveGame* m_game = nullptr;
  Asks m_asks = Asks::Rebound;
  bool m_hasTeam = false;
  bool m_canBlock = false;
  bool m_isBlock = false;
  Side m_shooterTeam = Side::Visitor;
  int m_shooter = 0;
  std::vector<Choice> m_choices;
  std::string m_typed;
  std::vector<FittingJersey> m_fitting;
  std::optional<std::size_t> m_mark; // in m_fitting
  std::optional<Refusal> m_refusal;
  std::optional<WayOut> m_wayOut;
};

} // namespace hooptab
