#include "livedata/NbaLiveIds.h"

#include <algorithm>
#include <charconv>

namespace hooptab {

namespace {

// 0 where it is none that every program can hold.
std::int64_t numberIn(const std::string& id) {
  constexpr std::int64_t kLargest = (std::int64_t{1} << 53) - 1;
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(id.data(), id.data() + id.size(), number);
  const bool isWhole = error == std::errc() && end == id.data() + id.size() && std::to_string(number) == id;
  return isWhole && number > 0 && number <= kLargest ? number : 0;
}

std::string gameIdOf(const ForeignGame& game) {
  if (!game.id.empty())
    return game.id;
  std::string day = game.date;
  std::erase(day, '-');
  return day + '/' + game.teams[Side::Visitor].abbreviation + game.teams[Side::Home].abbreviation;
}

} // namespace

NbaLiveIds::NbaLiveIds(const ForeignGame& game) : m_game(gameIdOf(game)) {
  // Numbers of the game's own first, so that none is made up that another has.
  for (const Side team : kSides) {
    m_teams[team] = take(game.teams[team].id);
    for (const ForeignPlayer& player : game.teams[team].players)
      m_players[team].push_back(take(player.id));
  }
  std::int64_t next = 0;
  const auto makeUp = [&](std::int64_t& id) {
    while (id == 0) {
      if (m_taken.insert(++next).second)
        id = next;
    }
  };
  for (const Side team : kSides) {
    makeUp(m_teams[team]);
    std::ranges::for_each(m_players[team], makeUp);
  }
  for (std::int64_t& coach : m_coaches)
    makeUp(coach);
}

std::int64_t NbaLiveIds::take(const std::string& own) {
  const std::int64_t number = numberIn(own);
  return number != 0 && m_taken.insert(number).second ? number : 0;
}

std::int64_t NbaLiveIds::team(std::optional<Side> team) const {
  return team ? m_teams[*team] : 0;
}

std::int64_t NbaLiveIds::player(const Doer& doer) const {
  return doer.isPlayer() ? m_players[*doer.team].at(static_cast<std::size_t>(doer.player)) : 0;
}

} // namespace hooptab
