#include "simulator/SimulatedSide.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kDressed = 12;
constexpr int kOfEachPosition = 2; // the best two always play, whoever else is in form
constexpr int kNeeded = 1000;
constexpr int kNotInRotation = 900; // what such a player's quality lacks: he plays only when nobody else can
constexpr int kFullEnergy = 1000;
constexpr std::array kTeamAccuracy = {12, -6, 14, 2}; // by team, of a thousand

// The positions of those who begin.
constexpr std::array kStartingPositions = {0, 1, 1, 2, 2};

} // namespace

SimulatedSide::SimulatedSide(const SampleTeam& team, int personalFoulLimit, int technicalFoulLimit,
                             Random& random)
    : m_personalFoulLimit(personalFoulLimit), m_technicalFoulLimit(technicalFoulLimit) {
  // Form changes from game to game: who is dressed, and who is in the rotation.
  struct Candidate {
    std::size_t index;
    PlayerTraits traits;
    int form;
  };
  std::vector<Candidate> candidates;
  for (std::size_t i = 0; i < team.players.size(); ++i) {
    const PlayerTraits traits = traitsOf(team.id, team.players[i]);
    candidates.push_back({i, traits, traits.quality + random.between(0, 150)});
  }
  std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::form);
  std::array<int, 10> ofPosition = {};
  for (Candidate& candidate : candidates) {
    const int position = std::clamp(team.players[candidate.index].position, 0, 9);
    if (ofPosition[static_cast<std::size_t>(position)]++ < kOfEachPosition)
      candidate.form += kNeeded;
  }
  std::ranges::stable_sort(candidates, std::ranges::greater(), &Candidate::form);
  candidates.resize(std::min(candidates.size(), kDressed));
  const std::size_t rotation = static_cast<std::size_t>(random.between(8, 10));
  for (std::size_t i = rotation; i < candidates.size(); ++i)
    candidates[i].traits.quality -= kNotInRotation;
  std::ranges::sort(candidates, {}, &Candidate::index);
  for (const Candidate& candidate : candidates) {
    const RosterPlayer& player = team.players[candidate.index];
    m_roster.add(player);
    m_players.push_back({.jersey = player.jersey, .position = player.position, .traits = candidate.traits});
  }
  m_accuracy =
      kTeamAccuracy[static_cast<std::size_t>(team.id - 1) % kTeamAccuracy.size()] + random.between(-15, 15);

  // The best of each position begin; where a position has nobody left, the best of all.
  std::vector<std::size_t> byQuality(m_players.size());
  for (std::size_t i = 0; i < byQuality.size(); ++i)
    byQuality[i] = i;
  std::ranges::stable_sort(byQuality, std::ranges::greater(),
                           [this](std::size_t index) { return m_players[index].traits.quality; });
  for (std::size_t slot = 0; slot < m_onCourt.size(); ++slot) {
    auto best = std::ranges::find(byQuality, kStartingPositions[slot],
                                  [this](std::size_t index) { return m_players[index].position; });
    if (best == byQuality.end())
      best = byQuality.begin();
    m_onCourt[slot] = *best;
    byQuality.erase(best);
  }
}

std::string SimulatedSide::list() const {
  unsigned entries = 0;
  for (const std::size_t index : m_onCourt)
    entries |= 1U << (index + 1);
  return m_roster.listOf(entries);
}

bool SimulatedSide::isOnCourt(std::size_t index) const {
  return std::ranges::find(m_onCourt, index) != m_onCourt.end();
}

bool SimulatedSide::canSpareOne() const {
  return std::ranges::count(m_players, false, &SimulatedPlayer::isOut) >
         static_cast<std::ptrdiff_t>(m_onCourt.size());
}

void SimulatedSide::play(int seconds) {
  for (std::size_t i = 0; i < m_players.size(); ++i) {
    const int change = isOnCourt(i) ? -2 * seconds : 2 * seconds;
    m_players[i].energy = std::clamp(m_players[i].energy + change, 0, kFullEnergy);
  }
}

void SimulatedSide::rest(int seconds) {
  for (SimulatedPlayer& player : m_players)
    player.energy = std::min(player.energy + 2 * seconds, kFullEnergy);
}

int SimulatedSide::worth(const SimulatedPlayer& player, bool isDecisive) const {
  const int inTrouble = !isDecisive && player.personalFouls >= m_personalFoulLimit - 1 ? 250 : 0;
  return player.traits.quality + (isDecisive ? player.energy / 4 : player.energy) - inTrouble;
}

bool SimulatedSide::substitute(std::optional<std::size_t> kept, bool isDecisive) {
  constexpr int kMostChanges = 3;
  constexpr int kSamePosition = 80;
  constexpr int kFouledOut = 100000;
  const int margin = isDecisive ? 120 : 230;
  bool hasChanged = false;
  for (int change = 0; change < kMostChanges; ++change) {
    int bestGain = margin;
    std::optional<std::pair<std::size_t, std::size_t>> best; // slot, who comes
    for (std::size_t slot = 0; slot < m_onCourt.size(); ++slot) {
      const SimulatedPlayer& leaving = m_players[m_onCourt[slot]];
      if (kept == m_onCourt[slot] && !leaving.isOut)
        continue;
      for (std::size_t i = 0; i < m_players.size(); ++i) {
        const SimulatedPlayer& coming = m_players[i];
        if (coming.isOut || isOnCourt(i))
          continue;
        const int gain = worth(coming, isDecisive) - worth(leaving, isDecisive) +
                         (coming.position == leaving.position ? kSamePosition : 0) +
                         (leaving.isOut ? kFouledOut : 0);
        if (gain > bestGain) {
          bestGain = gain;
          best = {slot, i};
        }
      }
    }
    if (!best)
      break;
    m_onCourt[best->first] = best->second;
    hasChanged = true;
  }
  return hasChanged;
}

std::size_t SimulatedSide::pick(int PlayerTraits::*weight, Random& random,
                                std::optional<std::size_t> except) const {
  std::array<int, 5> weights = {};
  for (std::size_t slot = 0; slot < weights.size(); ++slot)
    weights[slot] = m_onCourt[slot] == except ? 0 : m_players[m_onCourt[slot]].traits.*weight;
  return m_onCourt[random.weighted(weights)];
}

std::optional<std::size_t> SimulatedSide::pickFouler(Random& random) const {
  std::array<int, 5> weights = {};
  for (std::size_t slot = 0; slot < weights.size(); ++slot) {
    const SimulatedPlayer& player = m_players[m_onCourt[slot]];
    const int left = m_personalFoulLimit - player.personalFouls;
    if (left > 1 || canSpareOne())
      weights[slot] = player.traits.fouling * std::min(left, 3); // who has many is careful
  }
  if (std::ranges::all_of(weights, [](int weight) { return weight == 0; }))
    return std::nullopt;
  return m_onCourt[random.weighted(weights)];
}

std::optional<std::size_t> SimulatedSide::pickForTechnical(Random& random) const {
  const std::size_t index = static_cast<std::size_t>(random.below(static_cast<int>(m_players.size())));
  const SimulatedPlayer& player = m_players[index];
  const bool isLast = player.technicalFouls + 1 >= m_technicalFoulLimit;
  if (player.isOut || (isLast && !canSpareOne()))
    return std::nullopt;
  return index;
}

void SimulatedSide::addPersonalFoul(std::size_t index) {
  SimulatedPlayer& player = m_players[index];
  player.isOut = ++player.personalFouls >= m_personalFoulLimit || player.isOut;
}

void SimulatedSide::addTechnicalFoul(std::size_t index) {
  SimulatedPlayer& player = m_players[index];
  player.isOut = ++player.technicalFouls >= m_technicalFoulLimit || player.isOut;
}

std::size_t SimulatedSide::bestFreeThrower() const {
  return *std::ranges::max_element(m_onCourt, {},
                                   [this](std::size_t index) { return m_players[index].traits.freeThrow; });
}

} // namespace hooptab
