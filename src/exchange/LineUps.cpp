#include "exchange/LineUps.h"

#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::size_t kFive = 5;

std::string when(int period, int centiseconds) {
  return std::to_string(period) + " - " + Module1::clockText(centiseconds / 100);
}

// What only somebody on court can do. Technical fouls and what a bench does are no proof.
bool isOnCourtAct(const ForeignEvent& event) {
  return event.kind == ForeignKind::Out ||
         (event.kind == ForeignKind::Event && event.code != EventCode::STF && event.doer.isPlayer());
}

} // namespace

LineUps::LineUps(const ForeignGame& game) : m_game(game) {
  const bool hasSubstitutions = std::ranges::any_of(game.events, [](const ForeignEvent& event) {
    return event.kind == ForeignKind::In || event.kind == ForeignKind::Out;
  });
  for (const Side team : kSides) {
    const std::vector<ForeignPlayer>& players = game.teams[team].players;
    std::set<int>& five = m_onCourt[team];
    for (std::size_t i = 0; i < players.size(); ++i) {
      if (players[i].isStarter)
        five.insert(static_cast<int>(i));
    }
    if (five.size() == kFive || players.empty())
      continue;
    if (hasSubstitutions)
      infer(team);
    else
      m_notes.push_back({Text::NoLineUps, game.teams[team].name});
  }
}

void LineUps::infer(Side team) {
  std::set<int>& five = m_onCourt[team];
  std::set<int> came;
  for (const ForeignEvent& event : m_game.events) {
    if (event.period != 1 || five.size() >= kFive)
      break;
    if (event.doer.team != team || !event.doer.isPlayer())
      continue;
    if (event.kind == ForeignKind::In)
      came.insert(event.doer.player);
    else if (isOnCourtAct(event) && !came.contains(event.doer.player))
      five.insert(event.doer.player);
  }
  m_notes.push_back({Text::StartersGuessed, m_game.teams[team].name, std::to_string(five.size())});
}

bool LineUps::isOnCourt(const Doer& player) const {
  return player.isPlayer() && onCourt(*player.team).contains(player.player);
}

std::string LineUps::nameOf(const Doer& player) const {
  const ForeignPlayer& one = m_game.teams[*player.team].players[static_cast<std::size_t>(player.player)];
  return one.jersey + ' ' + one.name;
}

void LineUps::change(const ForeignEvent& substitution) {
  const Doer& player = substitution.doer;
  const bool comes = substitution.kind == ForeignKind::In;
  if (isOnCourt(player) == comes)
    m_notes.push_back({comes ? Text::InTwice : Text::OutWhileOff, nameOf(player),
                       when(substitution.period, substitution.centiseconds)});
  std::set<int>& team = m_onCourt[*player.team];
  if (comes)
    team.insert(player.player);
  else
    team.erase(player.player);
}

void LineUps::checkAt(int period, int centiseconds) {
  for (const Side team : kSides) {
    if (m_onCourt[team].size() == kFive || m_onCourt[team].empty() || m_onCourt[team] == m_told[team])
      continue;
    m_told[team] = m_onCourt[team];
    m_notes.push_back({Text::NotFiveOnCourt,
                       m_game.teams[team].name + ": " + std::to_string(m_onCourt[team].size()),
                       when(period, centiseconds)});
  }
}

} // namespace hooptab
