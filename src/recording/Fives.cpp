#include "recording/Fives.h"

#include "game/PlayerLookup.h"
#include "insight/Rates.h"
#include "recording/LiveFigures.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace hooptab {

namespace {

using SharesOfLines = std::array<CourtShare, GameState::kLineEntries>;

// Against whomever.
SharesOfLines sharesOfLines(const GameInsight& insight, Side team) {
  SharesOfLines shares = {};
  for (const Matchup& matchup : insight.matchups)
    shares[static_cast<std::size_t>(matchup.line[team])] += matchup.share;
  return shares;
}

std::optional<double> netOf(Side team, const CourtShare& share) {
  static const Rate& net = rateNamed("netRating");
  return std::ranges::min(share.possessions) < Fives::kFewestPossessions
             ? std::nullopt
             : net.value(RateBasis::ofAll(team, share));
}

} // namespace

Fives Fives::of(const LiveMoment& game, const GameInsight& insight) {
  Fives fives;
  const GameState& state = game.state();
  for (const Side team : kSides) {
    const SharesOfLines shares = sharesOfLines(insight, team);
    const auto playOf = [&](std::size_t line, int seconds) {
      const CourtShare& share = shares[line];
      return FivePlay{.players = state.lineMembers[team][line] & ~1U,
                      .jerseys = jerseysOnCourt(state.lines[team][line].list, game.game().roster[team]),
                      .seconds = seconds,
                      .pointsFor = share.points(team),
                      .pointsAgainst = share.points(otherSide(team)),
                      .net = netOf(team, share)};
    };
    const std::size_t onCourt = state.currentLine[team];
    if (onCourt != 0)
      fives.current[team] = playOf(onCourt, LiveFigures(game).secondsOfLine(team));
    auto& ranked = fives.ranked[team];
    for (std::size_t line = 1; line <= static_cast<std::size_t>(state.usedLines[team]); ++line) {
      const int seconds = line == onCourt ? fives.current[team].seconds : shares[line].seconds;
      const std::string& list = state.lines[team][line].list;
      if (seconds >= kShortest && playersOnCourt(list, game.game().roster[team]).size() == kMostOnCourt)
        ranked.push_back(playOf(line, seconds));
    }
    std::ranges::stable_sort(ranked, std::ranges::greater(),
                             [](const FivePlay& play) { return std::tuple(play.plusMinus(), play.seconds); });
  }
  return fives;
}

} // namespace hooptab
