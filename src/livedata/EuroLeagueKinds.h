// The one table of what a row of a EuroLeague play-by-play can be; reader and writer go by it.
#pragma once

#include "game/EventKind.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

namespace hooptab {

enum class EuroLeagueRow : std::uint8_t {
  Event,
  In,
  Out,
  PeriodStart,
  PeriodEnd,
  GameEnd,
  FoulDrawn, // of a foul near it
  Rejected,  // whose shot a block near it was
  JumpBall,  // of a team, without the jumpers
  Challenge,
};

struct EuroLeagueKind {
  std::string_view type;  // PLAYTYPE
  std::string_view words; // with which PLAYINFO begins
  EuroLeagueRow row = EuroLeagueRow::Event;
  EventCode code = EventCode::Unknown;
  bool isMade = false;
  std::string_view detail = {};
};

namespace detail {
constexpr EuroLeagueKind euroLeagueEvent(std::string_view type, std::string_view words, EventCode code,
                                         std::string_view detail = {}, bool isMade = false) {
  return {type, words, EuroLeagueRow::Event, code, isMade, detail};
}
constexpr EuroLeagueKind euroLeagueMade(std::string_view type, std::string_view words, EventCode code,
                                        std::string_view detail = {}) {
  return euroLeagueEvent(type, words, code, detail, true);
}
} // namespace detail

// What today's files have stands first; the shots at the end are those of seasons up to 2016-17.
inline constexpr std::array kEuroLeagueKinds = std::to_array<EuroLeagueKind>({
    detail::euroLeagueMade("2FGM", "Two Pointer", EventCode::GFG),
    detail::euroLeagueEvent("2FGA", "Missed Two Pointer", EventCode::GFG),
    detail::euroLeagueMade("3FGM", "Three Pointer", EventCode::GF3),
    detail::euroLeagueEvent("3FGA", "Missed Three Pointer", EventCode::GF3),
    detail::euroLeagueMade("FTM", "Free Throw In", EventCode::GFT),
    detail::euroLeagueEvent("FTA", "Missed Free Throw", EventCode::GFT),
    detail::euroLeagueEvent("O", "Off Rebound", EventCode::SOR),
    detail::euroLeagueEvent("D", "Def Rebound", EventCode::SDR),
    detail::euroLeagueEvent("AS", "Assist", EventCode::SA),
    detail::euroLeagueEvent("ST", "Steal", EventCode::SST),
    detail::euroLeagueEvent("TO", "Turnover", EventCode::STO),
    detail::euroLeagueEvent("FV", "Block", EventCode::SBS),
    {"AG", "Shot Rejected", EuroLeagueRow::Rejected},
    detail::euroLeagueEvent("CM", "Foul", EventCode::SPF, "P"),
    detail::euroLeagueEvent("OF", "Offensive Foul", EventCode::SPF, "O"),
    detail::euroLeagueEvent("CMU", "Unsportsmanlike Foul", EventCode::SPF, "U"),
    detail::euroLeagueEvent("CMD", "Disqualifying Foul", EventCode::SPF, "D"),
    detail::euroLeagueEvent("CMTI", "Throw-In Foul", EventCode::SPF, "P"),
    detail::euroLeagueEvent("CMT", "Technical Foul", EventCode::STF),
    detail::euroLeagueEvent("C", "Coach Foul", EventCode::XCF, "C"),
    detail::euroLeagueEvent("B", "Bench Foul", EventCode::XCF, "B"),
    {"RV", "Foul Drawn", EuroLeagueRow::FoulDrawn},
    detail::euroLeagueEvent("TOUT", "Time Out", EventCode::XTO, "FULL"),
    detail::euroLeagueEvent("TOUT_TV", "TV Time Out", EventCode::XTO, "MEDIA"),
    {"CCH", "Coach Challenge", EuroLeagueRow::Challenge},
    {"JB", "Jump Ball", EuroLeagueRow::JumpBall},
    {"IN", "In", EuroLeagueRow::In},
    {"OUT", "Out", EuroLeagueRow::Out},
    {"BP", "Begin Period", EuroLeagueRow::PeriodStart},
    {"EP", "End Period", EuroLeagueRow::PeriodEnd},
    {"EG", "End Game", EuroLeagueRow::GameEnd},
    detail::euroLeagueMade("LAYUPMD", "Layup Made", EventCode::GFG, "LAYUP"),
    detail::euroLeagueEvent("LAYUPATT", "Missed Layup", EventCode::GFG, "LAYUP"),
    detail::euroLeagueMade("DUNK", "Dunk", EventCode::GFG, "DUNK"),
    detail::euroLeagueEvent("2FGAB", "Missed Two Pointer", EventCode::GFG),
    detail::euroLeagueEvent("3FGAB", "Missed Three Pointer", EventCode::GF3),
});

// Null where there is none.
[[nodiscard]] constexpr const EuroLeagueKind* euroLeagueKind(std::string_view type) {
  const auto* const found = std::ranges::find(kEuroLeagueKinds, type, &EuroLeagueKind::type);
  return found == kEuroLeagueKinds.end() ? nullptr : found;
}
[[nodiscard]] constexpr const EuroLeagueKind& euroLeagueKind(EuroLeagueRow row) {
  return *std::ranges::find(kEuroLeagueKinds, row, &EuroLeagueKind::row);
}

// The lists of rows, one for each quarter and one for all overtimes.
inline constexpr std::array<std::string_view, 5> kEuroLeagueLists = {
    "FirstQuarter", "SecondQuarter", "ThirdQuarter", "ForthQuarter", "ExtraTime"};

inline constexpr std::string_view kEuroLeagueNotPlayed = "DNP"; // for a player's minutes

// The figures of a box score's row, and what they are called when official numbers are compared.
struct EuroLeagueFigure {
  std::string_view member;
  std::string_view number;
};
inline constexpr std::array kEuroLeagueFigures = std::to_array<EuroLeagueFigure>({
    {"Points", "PTS"},
    {"FieldGoalsMade2", "FGM"},
    {"FieldGoalsAttempted2", "FGA"},
    {"FieldGoalsMade3", "F3M"},
    {"FieldGoalsAttempted3", "F3A"},
    {"FreeThrowsMade", "FTM"},
    {"FreeThrowsAttempted", "FTA"},
    {"OffensiveRebounds", "OR"},
    {"DefensiveRebounds", "DR"},
    {"Assistances", "Ast"},
    {"Steals", "ST"},
    {"Turnovers", "TO"},
    {"BlocksFavour", "BS"},
    {"BlocksAgainst", "BA"},
    {"FoulsCommited", "PF"},
    {"FoulsReceived", "FD"},
});

} // namespace hooptab
