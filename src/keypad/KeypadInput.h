// Recording by keys: what is typed on the external keypad or as a line on the main keyboard, what it will do,
// and why nothing was recorded. Position decides: at the confirm key the last key is the action and all
// before it the jersey; a key of IN or OUT between two numbers exchanges two players. Reads the game; what it
// orders is carried out by whoever feeds it with keys.
#pragma once

#include "game/Side.h"
#include "keypad/KeypadAssignment.h"
#include "recording/LiveGame.h"

#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct KeyPress {
  int code = 0; // virtual-key code
  bool isKeypad = true;
  bool hasShift = false;
};

// What a confirmed input asks for.
struct KeypadOrder {
  enum class Kind { Shot, Action, OfTeam, In, Out, Exchange, AllOut };
  Kind kind = Kind::Action;
  Side team = Side::Visitor;
  int player = 0; // entry; 0 for OfTeam and AllOut
  EventCode code = EventCode::Unknown;
  bool isMade = false; // shots
  int leaving = 0;     // entry; of an Exchange, in which `player` comes in
  friend bool operator==(const KeypadOrder&, const KeypadOrder&) = default;
};
// False when the game took none of it.
bool carryOut(LiveGame& game, const KeypadOrder& order);

// Why nothing was recorded.
struct KeypadReason {
  enum class Problem {
    NothingTyped,
    NumberMissing,
    ActionMissing,
    NoShotKind,
    NotUnderstood,
    TooManyKeys,
    AllAlone, // a number before the key for all
    GameIsClosed,
    NoSuchPlayer,
    OnlyInOtherTeam,
    SameTwice,
    OnCourtAlready,
    NotOnCourt,
    CourtIsFull,
    NobodyOnCourt,
  };
  Problem problem = Problem::NothingTyped;
  // Whom it is about, where it is about anybody.
  std::string jersey = {};
  std::string team = {};      // abbreviation
  std::string otherTeam = {}; // the one that has such a player
  [[nodiscard]] std::string words(const Texts& texts) const;
  friend bool operator==(const KeypadReason&, const KeypadReason&) = default;
};

class KeypadInput {
 public:
  static constexpr std::size_t kMostKeys = 8;

  explicit KeypadInput(KeypadSetup setup = {}) : m_setup(std::move(setup)) {}
  const KeypadSetup& setup() const { return m_setup; }
  void setSetup(const KeypadSetup& setup); // what is typed is forgotten
  // Without the bound keys there are those of the line alone: digits and letters of the main keyboard, and
  // behind them Enter, Backspace and Esc.
  void setHasBoundKeys(bool hasBoundKeys) { m_hasBoundKeys = hasBoundKeys; }

  // Whether press() has a use for it now.
  [[nodiscard]] bool owns(const KeyPress& key) const;
  // What a key means where a player is asked for: the same keys, but nothing is typed here.
  enum class Meaning { None, Digit, Confirm, Clear, Clock, Other };
  [[nodiscard]] Meaning meaningOf(const KeyPress& key) const;
  [[nodiscard]] std::optional<int> digitOf(const KeyPress& key) const;
  // What the key of an action records; Unknown for any other.
  [[nodiscard]] EventCode recordedBy(const KeyPress& key) const;
  // The team of a confirm key.
  [[nodiscard]] std::optional<Side> teamOf(const KeyPress& key, const Game& game) const;

  enum class Outcome {
    NotMine, // no key of ours: whoever else may have it
    Typed,   // or taken back
    Cleared,
    Clock,     // the clock is to be started or stopped; what is typed stays
    Confirmed, // order() is to be carried out
    Refused,   // reason() tells why nothing was recorded
  };
  Outcome press(const KeyPress& key, const LiveGame& game);
  const KeypadOrder& order() const { return m_order; }
  const std::optional<KeypadReason>& reason() const {
    return m_reason;
  } // of the last refusal, until the next key
  void clear();

  bool isEmpty() const { return m_typed.empty(); }
  [[nodiscard]] std::string typed() const;
  // What the confirm keys would do now, a line for each team that has the player; or what is missing.
  [[nodiscard]] std::string preview(const Game& game, const Texts& texts) const;
  // An order in words, for the message that it was recorded.
  [[nodiscard]] static std::string words(const KeypadOrder& order, const Game& game, const Texts& texts);

 private:
  struct Key {
    std::optional<int> digit;
    std::optional<KeypadAction> action;
    bool isMiss = false;
    bool isKeypad = false;
  };
  struct Reading {
    std::optional<KeypadReason::Problem> problem = std::nullopt; // none when the input makes sense
    KeypadOrder order = {};
    std::string jersey = {};
    std::string leaving = {}; // the other jersey of an Exchange
  };
  [[nodiscard]] Key keyOf(const KeyPress& press) const;
  [[nodiscard]] bool isLine() const; // typed on the main keyboard alone
  // In a game that asks for what teams do, an action without a number is the team's.
  [[nodiscard]] Reading read(bool isLine, const Game& game) const;
  [[nodiscard]] Reading readShot(std::size_t begin, std::size_t end, bool isMade) const;
  [[nodiscard]] std::optional<Reading> readExchange() const;
  [[nodiscard]] std::optional<std::string> digits(std::size_t begin, std::size_t end) const;
  Outcome confirm(Side team, bool isLine, const LiveGame& game);
  Outcome refuse(KeypadReason reason);

  [[nodiscard]] static std::optional<KeypadReason> nameIn(KeypadOrder& order, const Reading& reading,
                                                          const Game& game);

  KeypadSetup m_setup;
  bool m_hasBoundKeys = true;
  std::vector<Key> m_typed;
  KeypadOrder m_order;
  std::optional<KeypadReason> m_reason;
};

} // namespace hooptab
