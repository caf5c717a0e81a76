// The one table of what can happen in a game: shot kinds and counted actions with their code, counters,
// points, labels and follow-up, and what happens to a team as a whole. Buttons, keypad, tally, box score,
// manual entry and reports all read it.
#pragma once

#include "settings/Text.h"

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
  XTO,
  XOR,
  XDR,
  XTV,
  XCF,
  XJB,
  XAR,
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
  Text wordsText;             // its name in words
  bool isOfTeam = false;      // no player's: has none of the counters, and moves no clock of a count
};

namespace detail {
constexpr EventKind shot(EventCode code, std::string_view text, Counter made, Counter attempts,
                         std::uint8_t points, bool hasPlace, FollowUp followUp, std::string_view shortName,
                         Text words) {
  return {code, text, made, attempts, points, true, hasPlace, false, followUp, shortName, words};
}
constexpr EventKind action(EventCode code, std::string_view text, Counter counter, bool isTeamFoul,
                           std::string_view shortName, Text words) {
  return {code, text, counter, counter, 0, false, false, isTeamFoul, FollowUp::None, shortName, words};
}
constexpr EventKind ofTeam(EventCode code, std::string_view text, std::string_view shortName, Text words) {
  return {code,  text,  Counter::FGM,   Counter::FGM, 0,     false,
          false, false, FollowUp::None, shortName,    words, true};
}
} // namespace detail

// What players do, shots first, each in the order of the counters.
inline constexpr std::array kEventKinds = {
    detail::shot(EventCode::GFG, "GFG", Counter::FGM, Counter::FGA, 2, true, FollowUp::Assist, "FG",
                 Text::TwoPoints),
    detail::shot(EventCode::GFT, "GFT", Counter::FTM, Counter::FTA, 1, false, FollowUp::None, "FT",
                 Text::FreeThrow),
    detail::shot(EventCode::GF3, "GF3", Counter::F3M, Counter::F3A, 3, true, FollowUp::Assist, "F3",
                 Text::ThreePoints),
    detail::shot(EventCode::GLG, "GLG", Counter::LLM, Counter::LLA, 2, false, FollowUp::Assist, "LL",
                 Text::LayupLeft),
    detail::shot(EventCode::GLD, "GLD", Counter::LRM, Counter::LRA, 2, false, FollowUp::Assist, "LR",
                 Text::LayupRight),
    detail::shot(EventCode::GPB, "GPB", Counter::PBM, Counter::PBA, 2, false, FollowUp::Assist, "PB",
                 Text::PutBack),
    detail::shot(EventCode::GDK, "GDK", Counter::DKM, Counter::DKA, 2, false, FollowUp::Assist, "DK",
                 Text::Dunk),
    detail::action(EventCode::SA, "SA", Counter::Ast, false, "Ast", Text::Assist),
    detail::action(EventCode::SBS, "SBS", Counter::BS, false, "BS", Text::BlockedShot),
    detail::action(EventCode::SST, "SST", Counter::ST, false, "ST", Text::Steal),
    detail::action(EventCode::STO, "STO", Counter::TO, false, "TO", Text::Turnover),
    detail::action(EventCode::SOR, "SOR", Counter::OR, false, "OR", Text::OffensiveRebound),
    detail::action(EventCode::SDR, "SDR", Counter::DR, false, "DR", Text::DefensiveRebound),
    detail::action(EventCode::SU1, "SU1", Counter::S1, false, "S1", Text::OtherOne),
    detail::action(EventCode::SU2, "SU2", Counter::S2, false, "S2", Text::OtherTwo),
    detail::action(EventCode::SPF, "SPF", Counter::PF, true, "PF", Text::PersonalFoul),
    detail::action(EventCode::STF, "STF", Counter::TF, true, "TF", Text::TechnicalFoul),
};
// What teams do. Older readers keep these, and do not count them.
inline constexpr std::array kTeamKinds = {
    detail::ofTeam(EventCode::XTO, "XTO", "", Text::TimeOut),
    detail::ofTeam(EventCode::XOR, "XOR", "OR", Text::TeamOffensiveRebound),
    detail::ofTeam(EventCode::XDR, "XDR", "DR", Text::TeamDefensiveRebound),
    detail::ofTeam(EventCode::XTV, "XTV", "TO", Text::TeamTurnover),
    detail::ofTeam(EventCode::XCF, "XCF", "CF", Text::BenchTechnical),
    detail::ofTeam(EventCode::XJB, "XJB", "", Text::JumpBall),
    detail::ofTeam(EventCode::XAR, "XAR", "", Text::PossessionArrow),
};
[[nodiscard]] constexpr std::span<const EventKind> eventKinds() {
  return kEventKinds;
}
// Of a player, and of coach and bench: what free throws follow.
[[nodiscard]] constexpr bool isFoul(EventCode code) {
  return code == EventCode::SPF || code == EventCode::STF || code == EventCode::XCF;
}
// The kind of a code, a player's or a team's; null for Unknown, DEPART and ARRET.
[[nodiscard]] constexpr const EventKind* kindOf(EventCode code) {
  for (const EventKind& kind : kEventKinds) {
    if (kind.code == code)
      return &kind;
  }
  for (const EventKind& kind : kTeamKinds) {
    if (kind.code == code)
      return &kind;
  }
  return nullptr;
}

} // namespace hooptab
