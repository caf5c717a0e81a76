#include "bbgame/BbGameBox.h"

#include <array>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr int kHundred = 100;
constexpr int kMinute = 60 * kHundred;

struct Counted {
  EventCode code;
  std::string_view attribute;
};
constexpr std::array kCounted = {
    Counted{EventCode::SA, "ast"},   Counted{EventCode::SBS, "blk"},  Counted{EventCode::SST, "stl"},
    Counted{EventCode::STO, "to"},   Counted{EventCode::XTV, "to"},   Counted{EventCode::SOR, "oreb"},
    Counted{EventCode::SOR, "treb"}, Counted{EventCode::XOR, "oreb"}, Counted{EventCode::XOR, "treb"},
    Counted{EventCode::SDR, "dreb"}, Counted{EventCode::SDR, "treb"}, Counted{EventCode::XDR, "dreb"},
    Counted{EventCode::XDR, "treb"}, Counted{EventCode::SPF, "pf"},   Counted{EventCode::STF, "tf"},
    Counted{EventCode::XCF, "tf"},
};

} // namespace

BbGameBox::BbGameBox(const ForeignGame& game) : m_game(game) {
  for (const Side team : kSides) {
    const std::vector<ForeignPlayer>& players = game.teams[team].players;
    for (std::size_t i = 0; i < players.size(); ++i) {
      if (players[i].isStarter)
        m_onCourt[team].insert(static_cast<int>(i));
    }
  }
  const std::vector<ShotOrigin> origins = shotOrigins(game);
  for (std::size_t i = 0; i < game.events.size(); ++i) {
    const ForeignEvent& event = game.events[i];
    advance(event.period, event.centiseconds);
    take(event);
    if (event.code >= EventCode::GFG && event.doer.team)
      takeShot(event, origins[i]);
  }
  for (const auto& [key, hundredths] : m_played) {
    const auto [team, player, period] = key;
    m_counts[{team, player, period, "seconds"}] = (hundredths + kHundred / 2) / kHundred;
  }
}

int BbGameBox::count(Side team, int player, int period, std::string_view attribute) const {
  const auto found = m_counts.find({team, player, period, attribute});
  return found == m_counts.end() ? 0 : found->second;
}

bool BbGameBox::isOnCourt(const Doer& player) const {
  return m_onCourt[*player.team].contains(player.player);
}

bool BbGameBox::hasPlayed(const Doer& player) const {
  const auto first = m_counts.lower_bound({*player.team, player.player, kWholeGame, {}});
  return first != m_counts.end() && std::get<0>(first->first) == player.team &&
         std::get<1>(first->first) == player.player;
}

void BbGameBox::advance(int period, int centiseconds) {
  if (period != m_period) {
    m_period = period;
    m_centiseconds = (period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * kMinute;
  }
  const int passed = m_centiseconds - centiseconds;
  if (passed <= 0)
    return;
  m_centiseconds = centiseconds;
  for (const Side team : kSides) {
    for (const int player : m_onCourt[team]) {
      for (const int each : {m_period, kWholeGame})
        m_played[{team, player, each}] += passed;
    }
  }
}

void BbGameBox::add(const Doer& doer, std::string_view attribute, int amount) {
  if (!doer.team || amount == 0)
    return;
  for (const int period : {m_period, kWholeGame}) {
    for (const int whom : {doer.isPlayer() ? doer.player : kTeamRow, kWholeTeam})
      m_counts[{*doer.team, whom, period, attribute}] += amount;
  }
}

void BbGameBox::take(const ForeignEvent& event) {
  if ((event.kind == ForeignKind::In || event.kind == ForeignKind::Out) && event.doer.team) {
    std::set<int>& team = m_onCourt[*event.doer.team];
    if (event.kind == ForeignKind::In)
      team.insert(event.doer.player);
    else
      team.erase(event.doer.player);
  }
  if (event.kind != ForeignKind::Event)
    return;
  for (const Counted& counted : kCounted) {
    if (counted.code == event.code)
      add(event.doer, counted.attribute);
  }
  if (event.other.isPlayer() && (event.code == EventCode::SPF || event.code == EventCode::STF))
    add(event.other, "drawn");
  if (event.other.isPlayer() && event.code == EventCode::SBS)
    add(event.other, "blkrcvd");
}

void BbGameBox::takeShot(const ForeignEvent& shot, const ShotOrigin& origin) {
  const auto attempt = [&](std::string_view attempts, std::string_view makes) {
    add(shot.doer, attempts);
    if (shot.isMade)
      add(shot.doer, makes);
  };
  if (shot.code == EventCode::GFT)
    attempt("fta", "ftm");
  else
    attempt("fga", "fgm");
  if (shot.code == EventCode::GF3)
    attempt("fga3", "fgm3");
  if (shot.isMade)
    score(shot, origin);
}

void BbGameBox::score(const ForeignEvent& shot, const ShotOrigin& origin) {
  const int points = pointsOf(shot);
  const Side team = *shot.doer.team;
  const bool isOfBench = shot.doer.isPlayer() &&
                         !m_game.teams[team].players[static_cast<std::size_t>(shot.doer.player)].isStarter;
  if (shot.code == EventCode::GFG && !shot.place && !origin.isInPaint)
    m_knowsPaint = false;
  add(shot.doer, "tp", points);
  for (const auto& [counts, attribute] :
       {std::pair(isOfBench, "pts_bench"), std::pair(shot.isFastBreak, "pts_fastb"),
        std::pair(origin.isInPaint, "pts_paint"), std::pair(origin.isSecondChance, "pts_ch2"),
        std::pair(origin.isFromTurnover, "pts_to")}) {
    if (counts)
      add(shot.doer, attribute, points);
  }
}

} // namespace hooptab
