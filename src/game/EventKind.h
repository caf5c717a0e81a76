// The one table of what can happen in a game: shot kinds and counted actions with their code, counters,
// points, labels and follow-up. Buttons, keypad, tally, box score, manual entry and reports all read it.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace hooptab {

// The counters of one player, line or team, in the order in which a game state keeps them.
enum class Counter : std::uint8_t {
  FGM,
  FGA,
  FTM,
  FTA,
  F3M,
  F3A,
  LLM,
  LLA,
  LRM,
  LRA,
  PBM,
  PBA,
  DKM,
  DKA,
  Ast,
  BS,
  ST,
  TO,
  OR,
  DR,
  S1,
  S2,
  PF,
  TF,
};
inline constexpr std::size_t kCounterCount = 24;

// The name by which files, command line and tables know a counter ("FGM", "Ast").
[[nodiscard]] std::string_view counterName(Counter counter);

enum class EventCode : std::uint8_t {
  Unknown, // kept, shown, counts nothing
  DEPART,
  ARRET,
  SA,
  SBS,
  SDR,
  SOR,
  SPF,
  STF,
  SST,
  STO,
  SU1,
  SU2,
  GFG,
  GF3,
  GFT,
  GLG,
  GLD,
  GPB,
  GDK,
};

enum class FollowUp : std::uint8_t {
  None,
  Assist
}; // what a made shot asks for; every missed shot may ask for the rebound

struct EventKind {
  EventCode code;
  std::string_view text; // as in the file, without the "A" of a miss
  Counter counter;       // actions: the counter; shots: made
  Counter attempts;      // shots only
  std::uint8_t points;   // of a made shot; 0 for actions
  bool isShot;
  bool hasPlace; // x and y follow the player
  bool isTeamFoul;
  FollowUp followUpWhenMade;
  std::string_view shortName; // the same in both languages: "FG", "Ast"
  int wordsText;              // number of the text that names it in words
};

namespace detail {
constexpr EventKind shot(EventCode code, std::string_view text, Counter made, Counter attempts,
                         std::uint8_t points, bool hasPlace, FollowUp followUp, std::string_view shortName,
                         int words) {
  return {code, text, made, attempts, points, true, hasPlace, false, followUp, shortName, words};
}
constexpr EventKind action(EventCode code, std::string_view text, Counter counter, bool isTeamFoul,
                           std::string_view shortName, int words) {
  return {code, text, counter, counter, 0, false, false, isTeamFoul, FollowUp::None, shortName, words};
}
} // namespace detail

// All kinds but the clock's, shots first, each in the order of the counters.
inline constexpr std::array kEventKinds = {
    detail::shot(EventCode::GFG, "GFG", Counter::FGM, Counter::FGA, 2, true, FollowUp::Assist, "FG", 1573),
    detail::shot(EventCode::GFT, "GFT", Counter::FTM, Counter::FTA, 1, false, FollowUp::None, "FT", 1575),
    detail::shot(EventCode::GF3, "GF3", Counter::F3M, Counter::F3A, 3, true, FollowUp::Assist, "F3", 1574),
    detail::shot(EventCode::GLG, "GLG", Counter::LLM, Counter::LLA, 2, false, FollowUp::Assist, "LL", 1576),
    detail::shot(EventCode::GLD, "GLD", Counter::LRM, Counter::LRA, 2, false, FollowUp::Assist, "LR", 1577),
    detail::shot(EventCode::GPB, "GPB", Counter::PBM, Counter::PBA, 2, false, FollowUp::Assist, "PB", 1578),
    detail::shot(EventCode::GDK, "GDK", Counter::DKM, Counter::DKA, 2, false, FollowUp::Assist, "DK", 1579),
    detail::action(EventCode::SA, "SA", Counter::Ast, false, "Ast", 1580),
    detail::action(EventCode::SBS, "SBS", Counter::BS, false, "BS", 1581),
    detail::action(EventCode::SST, "SST", Counter::ST, false, "ST", 1586),
    detail::action(EventCode::STO, "STO", Counter::TO, false, "TO", 1587),
    detail::action(EventCode::SOR, "SOR", Counter::OR, false, "OR", 1583),
    detail::action(EventCode::SDR, "SDR", Counter::DR, false, "DR", 1582),
    detail::action(EventCode::SU1, "SU1", Counter::S1, false, "S1", 1012),
    detail::action(EventCode::SU2, "SU2", Counter::S2, false, "S2", 1013),
    detail::action(EventCode::SPF, "SPF", Counter::PF, true, "PF", 1584),
    detail::action(EventCode::STF, "STF", Counter::TF, true, "TF", 1585),
};
[[nodiscard]] constexpr std::span<const EventKind> eventKinds() {
  return kEventKinds;
}
// The kind of a code; null for Unknown, DEPART and ARRET.
[[nodiscard]] constexpr const EventKind* kindOf(EventCode code) {
  for (const EventKind& kind : kEventKinds) {
    if (kind.code == code)
      return &kind;
  }
  return nullptr;
}

} // namespace hooptab
