#include "checks/GameCheck.h"

#include "checks/EventCheck.h"
#include "checks/FileCheck.h"
#include "storage/CalendarDay.h"

#include <algorithm>

namespace hooptab {

namespace {

void checkRosters(const Game& game, std::vector<Finding>& findings) {
  for (const Side team : kSides) {
    const std::vector<RosterPlayer>& players = game.roster[team].players();
    if (players.empty())
      findings.push_back({.kind = FindingKind::NoRoster, .team = team});
    if (players.size() > Roster::kLargestEntry)
      findings.push_back(
          {.kind = FindingKind::MoreThanFifteen, .team = team, .found = std::to_string(players.size())});
    for (auto player = players.begin(); player != players.end(); ++player) {
      const auto isSame = [&](const RosterPlayer& other) {
        return Roster::areOneNumber(other.jersey, player->jersey);
      };
      if (std::any_of(players.begin(), player, isSame))
        findings.push_back({.kind = FindingKind::JerseyTwice, .team = team, .subject = player->jersey});
    }
  }
}

int pointsOf(const EventList& events, Side team) {
  int points = 0;
  for (const GameEvent& event : events) {
    if (event.isUnderstood && !event.isDeleted && event.isShot() && event.isMade && event.player.team == team)
      points += event.kind()->points;
  }
  return points;
}

void checkDetails(const Game& game, std::vector<Finding>& findings) {
  const GameDetails& details = game.details;
  if (details.impossibleMinutes)
    findings.push_back({.kind = FindingKind::ImpossibleLength,
                        .subject = std::to_string(*details.impossibleMinutes),
                        .found = std::to_string(details.minutesPerPeriod)});
  if (details.inputType != 0)
    return;
  if (!details.date.empty() && !calendarDay(details.date))
    findings.push_back({.kind = FindingKind::ImpossibleDate, .subject = details.date});
  if (!details.isFinished)
    return;
  for (const Side team : kSides) {
    if (details.abbreviation[team].empty() && details.name[team].empty())
      findings.push_back({.kind = FindingKind::NoTeam, .team = team});
  }
  const int points = pointsOf(game.events, Side::Visitor);
  if (points == pointsOf(game.events, Side::Home))
    findings.push_back(
        {.kind = FindingKind::Tied, .subject = std::to_string(points) + '-' + std::to_string(points)});
}

// What the user has accepted is worth no second look; what cannot be so stays wrong.
bool isAccepted(const Finding& finding, const Game& game) {
  if (finding.isWrong() || !finding.hasEvent())
    return false;
  const auto accepted = game.accepted.find(game.events[finding.event].number);
  return accepted != game.accepted.end() &&
         std::ranges::find(accepted->second, static_cast<int>(finding.kind)) != accepted->second.end();
}

// Those of no event come first: the place is one more than theirs, and the last place none.
void order(std::vector<Finding>& findings) {
  std::ranges::stable_sort(findings, {}, [](const Finding& finding) { return finding.event + 1; });
}

} // namespace

std::vector<Finding> checkGame(const Game& game) {
  std::vector<Finding> findings;
  checkDetails(game, findings);
  checkRosters(game, findings);
  checkEvents(game, findings);
  if (!game.accepted.empty())
    std::erase_if(findings, [&game](const Finding& finding) { return isAccepted(finding, game); });
  order(findings);
  return findings;
}

std::vector<Finding> checkGame(const Game& game, const ProfileText& text,
                               const std::optional<CountOutOfRange>& outOfRange) {
  std::vector<Finding> findings = checkGame(game);
  if (outOfRange)
    findings.push_back({.kind = FindingKind::CountOutOfRange,
                        .subject = game.details.abbreviation[outOfRange->team] + ' ' + outOfRange->what});
  checkFile(game, text, findings);
  order(findings);
  return findings;
}

} // namespace hooptab
