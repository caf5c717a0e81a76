// An event of the list that is being corrected with single steps: another player, made or missed, two or
// three points, another kind, another place. Its clock and its place in the game stay, and each step is one
// to undo. Where an assist or rebound behind a shot would no longer fit, nothing is changed before it is
// decided what becomes of it. A typed number is held whole, as in the question after a shot. Knows no window;
// how long a correction stays open is the window's affair.
#pragma once

#include "game/Side.h"
#include "recording/GameSession.h"
#include "settings/Texts.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

class EventCorrection {
 public:
  // What a step came to.
  enum class Outcome {
    None,    // no event is in correction, or a number is not whole yet
    Changed, // one step to undo
    Same,    // it says so already
    Refused, // reason() says why
    Asks,    // followUpQuestion(), then decide()
  };
  struct Who {
    Side team = Side::Visitor;
    int player = 0; // entry
    friend bool operator==(const Who&, const Who&) = default;
  };
  // What becomes of an assist or rebound that no longer fits its shot.
  enum class Remedy {
    Keep,   // as it is
    Delete, // with the step, and back with it
    Adapt,  // where canAdapt(): the former shooter's assist, or a rebound of the other kind
  };
  using CourtPlace = std::pair<double, double>; // in left-hand orientation

  // Shots and actions that count, in a game in which something can be recorded.
  [[nodiscard]] static bool canCorrect(const LiveGame& game, const EventPlace& event);
  // The last one that can be; none where there is none.
  [[nodiscard]] static std::optional<EventPlace> lastOf(const LiveGame& game);

  // False, and nothing is in correction, where it cannot be. The game must outlive the correction.
  bool begin(GameSession& session, const EventPlace& event);
  void end();
  // No longer, too, when the event was deleted or the game closed in the meantime.
  [[nodiscard]] bool isActive() const;
  const EventPlace& event() const { return m_event; } // while it is active
  // Whose it is now; entry 0 for somebody who is in no roster. While it is active, as all below.
  [[nodiscard]] Who player() const;
  [[nodiscard]] bool canToggleMade() const;                     // a shot
  [[nodiscard]] bool canToggleThree() const;                    // a field goal that the court records
  [[nodiscard]] std::string question(const Texts& texts) const; // "PAN 12 Dana Dunn: 2 points made – whose?"

  // --- Steps; each forgets a question that is open, and what was typed where it is carried out.
  Outcome takePlayer(const Who& who); // of either team, on court or on the bench
  Outcome toggleMade();
  Outcome toggleThree(); // the place stays

  // --- The follow-up that would no longer fit, after Asks
  bool isAsking() const { return m_asked.has_value(); }
  [[nodiscard]] bool canAdapt() const { return m_asked && m_asked->adapted; }
  [[nodiscard]] std::string followUpQuestion(const Texts& texts) const;
  [[nodiscard]] std::string adaptedWords(const Texts& texts) const; // "4 Ann Able: assist"; empty without
  // Carries the step out.
  Outcome decide(Remedy remedy);
  void dropQuestion() { m_asked.reset(); }

  // --- A number
  const std::string& typed() const { return m_typed; }
  // Whom Enter would take: of the event's team who is on court, else on its bench, else the one of the other
  // team.
  [[nodiscard]] std::optional<Who> meant() const;
  // Taken with its last digit where no number goes on from there, else with Enter.
  Outcome type(int digit);
  Outcome enter();
  void takeBackDigit();
  [[nodiscard]] std::string reason(const Texts& texts) const; // of the last Refused; else empty

 private:
  // What an event's line says behind its clock.
  struct Said {
    EventCode code = EventCode::Unknown;
    bool isMade = false;
    Side team = Side::Visitor;
    std::string jersey = {};
    std::optional<CourtPlace> place = std::nullopt;
    friend bool operator==(const Said&, const Said&) = default;
  };
  struct Asked {
    Said wanted;
    EventPlace followUp;
    std::optional<Said> adapted;
  };
  struct Refusal {
    Text text = Text::None; // with the number for XXX and the team for YYY
    std::string jersey = {};
    std::string team = {};
  };
  static Said saidBy(const GameEvent& event);
  [[nodiscard]] std::size_t index() const; // in the game's events
  [[nodiscard]] Said said() const;
  [[nodiscard]] bool isSamePlayer(const Said& left, const Said& right) const;
  [[nodiscard]] bool fits(const Said& shot, const Said& followUp) const;
  [[nodiscard]] std::optional<Said> adapted(const Said& old, const Said& wanted, const Said& followUp) const;
  [[nodiscard]] EditPlan planOf(const EventPlace& event, const Said& wanted) const;
  [[nodiscard]] bool canGoOn() const;
  Outcome change(const Said& wanted);
  Outcome take(const EditPlan& plan);
  Outcome takeTyped(const Who& who);
  Outcome refuse(Refusal refusal);

  GameSession* m_session = nullptr;
  const LiveGame* m_game = nullptr; // the session's
  EventPlace m_event;
  std::optional<Asked> m_asked;
  std::string m_typed;
  std::optional<Refusal> m_refusal;
};

} // namespace hooptab
