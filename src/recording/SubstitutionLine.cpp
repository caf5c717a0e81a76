#include "recording/SubstitutionLine.h"

#include "recording/JerseyMatch.h"
#include "storage/Placeholders.h"

#include <algorithm>

namespace hooptab {

SubstitutionLine::SubstitutionLine(const LiveGame& game, Substitution& choice)
    : m_game(game), m_choice(choice), m_team(game.game().details.mainTeam) {}

// Whose number it is as it stands.
std::optional<SubstitutionLine::Player> SubstitutionLine::meant() const {
  for (const Side team : {m_team, otherSide(m_team)}) {
    if (const int entry = m_game.game().roster[team].entryOf(m_typed); entry > 0)
      return Player{team, entry};
  }
  return std::nullopt;
}

// Of the other team he whose number this one has not.
bool SubstitutionLine::fits(Side team, int player) const {
  const auto& rosters = m_game.game().roster;
  const RosterPlayer* who = rosters[team].player(player);
  if (who == nullptr || m_typed.empty())
    return false;
  const bool isHidden = team != m_team && rosters[m_team].entryOf(who->jersey) > 0;
  return !isHidden &&
         (canBecome(m_typed, who->jersey) || !fittingJerseys({&who->jersey, 1}, m_typed).empty());
}

std::vector<SubstitutionLine::Player> SubstitutionLine::fitting() const {
  std::vector<Player> players;
  for (const Side team : {m_team, otherSide(m_team)}) {
    for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
      if (fits(team, entry))
        players.push_back({team, entry});
    }
  }
  return players;
}

void SubstitutionLine::type(int digit) {
  m_taken.reset();
  if (m_typed.size() < kMostDigits)
    m_typed += static_cast<char>('0' + digit);
  narrow();
}

// Takes a number that cannot go on; one that is nobody's stays, and is refused.
void SubstitutionLine::narrow() {
  m_refusal = Text::None;
  const auto goesOn = [this](const Player& player) {
    return canBecome(m_typed, m_game.game().roster[player.team].player(player.entry)->jersey);
  };
  if (!m_typed.empty() && std::ranges::none_of(fitting(), goesOn))
    take(meant());
}

bool SubstitutionLine::take(const std::optional<Player>& player) {
  if (!player) {
    m_refusal = Text::NobodyHereHasNumber;
    return false;
  }
  m_choice.toggle(player->team, player->entry);
  m_typed.clear();
  m_taken = player;
  return true;
}

void SubstitutionLine::separate() {
  if (!m_typed.empty())
    take(meant());
}

void SubstitutionLine::changeTeam() {
  m_team = otherSide(m_team);
  m_taken.reset();
  narrow();
}

void SubstitutionLine::takeBack() {
  m_taken.reset();
  if (m_typed.empty())
    return m_choice.takeBack();
  m_typed.pop_back();
  m_refusal = Text::None; // also where it could be taken now: the next key says
}

bool SubstitutionLine::enter() {
  if (m_typed.empty())
    return true;
  if (const auto whole = meant())
    return take(whole);
  const std::vector<Player> players = fitting();
  if (players.size() == 1)
    take(players.front());
  else
    m_refusal = players.empty() ? Text::NobodyHereHasNumber : Text::SeveralNumbers;
  return false;
}

std::string SubstitutionLine::nameOf(const Player& player) const {
  const RosterPlayer& who = *m_game.game().roster[player.team].player(player.entry);
  const std::string name = who.jersey + " " + who.name;
  return player.team == m_team ? name : m_game.game().details.abbreviation[player.team] + " " + name;
}

std::string SubstitutionLine::words(const Texts& texts) const {
  if (isRefused())
    return texts.withPlaceholder(m_refusal, m_typed);
  if (m_taken) {
    const bool stays = m_choice.isChosen(m_taken->team, m_taken->entry);
    const bool wasThere = m_choice.wasOnCourt(m_taken->team, m_taken->entry);
    const Text move = stays == wasThere ? Text::AsBefore : stays ? Text::ComesIn : Text::Leaves;
    return withPlaceholders(texts.text(Text::SubjectAndWords), nameOf(*m_taken), texts.text(move));
  }
  std::string names;
  for (const Player& player : fitting())
    names += (names.empty() ? "" : " · ") + nameOf(player);
  return names;
}

} // namespace hooptab
