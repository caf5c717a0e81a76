#include "simulator/SampleSeason.h"

#include <chrono>
#include <cstdio>

namespace hooptab {

namespace {

using namespace std::chrono_literals;
constexpr std::chrono::sys_days kFirstDay = 2025y / 10 / 3;
constexpr int kDays = 225;

enum GameType { Practice = 0, Season = 2, PlayOff = 3, Tournament = 4 };

constexpr std::array kHalls = {"Centre sportif des Érables, Sainte-Florine", "Harrowgate Hall, State College",
                               "Gymnase Léopold-Garneau, Val-Brûlé", "Old Mill Gym, Somewhere"};
constexpr std::array kStatisticians = {"Noémie Vauquelin", "Harold Finchley", "Zoé Brindamour",
                                       "Ines Calloway", "Rémi Després"};
constexpr std::array kNotes = {
    "Salle comble; l'arbitre a arrêté le chronomètre deux fois au 3e quart.",
    "Scoreboard failed in the second period, clock kept at the table.",
    "Défense de zone dès la 2e période. Très bon travail aux rebonds.",
    "Good ball movement, too many turnovers in the back court.",
    "Début retardé de 20 minutes : l'autobus des visiteurs était coincé dans la neige.",
    "Press after every made basket in the last four minutes.",
    "Blessure légère à la cheville, à surveiller cette semaine.",
    "Two starters came late from class; bench played well.",
};

std::string dateText(std::chrono::sys_days day) {
  const std::chrono::year_month_day date(day);
  std::array<char, 32> text = {};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
  return text.data();
}

GameType typeOn(std::chrono::sys_days day) {
  if (day < 2025y / 10 / 8)
    return Practice;
  if (day >= 2025y / 12 / 19 && day <= 2025y / 12 / 31)
    return Tournament;
  return day < 2026y / 4 / 6 ? Season : PlayOff;
}

// Every pair of teams meets twice, once in each hall, in twelve games that follow each other.
std::pair<std::size_t, std::size_t> pairing(int index) {
  constexpr int kPairings = 12;
  constexpr int kStep = 5; // without a common factor with them, so that all come, in mixed order
  const int meeting = index % kPairings * kStep % kPairings;
  const int visitors = meeting / 3;
  const int home = (visitors + 1 + meeting % 3) % 4;
  return {static_cast<std::size_t>(visitors), static_cast<std::size_t>(home)};
}

} // namespace

SampleSeason::SampleSeason(int games, std::uint64_t seed)
    : m_teams(sampleTeams()), m_games(games), m_seed(seed) {}

SimulatedGame SampleSeason::game(int index, const Wish& wish) const {
  const auto [visitors, home] = pairing(index);
  Random seeds(m_seed * 1'000'003U + static_cast<std::uint64_t>(index));
  for (;;) {
    GameSimulator simulator(m_teams[visitors], m_teams[home], seeds.next());
    SimulatedGame game = simulator.play(wish.interruption);
    if (wish.overtime && game.periods.size() <= GameSimulator::kPeriods)
      continue;
    describe(game, index);
    return game;
  }
}

void SampleSeason::describe(SimulatedGame& game, int index) const {
  Random random(m_seed * 1'000'033U + static_cast<std::uint64_t>(index));
  const auto anyOf = [&random](const auto& texts) {
    return texts[static_cast<std::size_t>(random.below(static_cast<int>(texts.size())))];
  };
  const std::chrono::sys_days day =
      kFirstDay + std::chrono::days(static_cast<std::int64_t>(index) * kDays / m_games);
  GameDetails& details = game.details;
  details.date = dateText(day);
  details.type = typeOn(day);
  details.mainTeam = *sideOf(random.below(2));
  details.place = kHalls[pairing(index).second];
  details.statistician = anyOf(kStatisticians);
  if (random.chance(500))
    details.notes = kNotes[static_cast<std::size_t>(index) % kNotes.size()];
}

} // namespace hooptab
