#include "season/SeasonDesk.h"

#include <algorithm>
#include <utility>

namespace hooptab {

void SeasonDesk::takeCatalogue(std::shared_ptr<const GameCatalogue> catalogue) {
  m_catalogue = std::move(catalogue);
  m_season.reset();
  if (!chosenTeam())
    m_choice.games.team.clear();
  apply(m_choice);
}

void SeasonDesk::apply(const SeasonChoice& choice) {
  m_choice = choice;
  m_listed = m_catalogue->select(m_choice.games);
}

std::optional<SeasonId> SeasonDesk::chosenTeam() const {
  return m_catalogue->teamOf(m_choice.games.team);
}

std::optional<ShotSums> SeasonDesk::shotsBeside(const GameDetails& game, std::optional<Side> team) const {
  if (m_listed.empty())
    return std::nullopt;
  if (!team)
    return shotsOfGames(*m_catalogue, m_listed);
  const auto id = m_catalogue->teamOf(seasonTeamKey(game.abbreviation[*team], game.category[*team]));
  const bool hasPlayed = id && std::ranges::any_of(m_listed, [&](std::size_t place) {
                           const auto& teams = m_catalogue->games()[place].team;
                           return teams[Side::Visitor] == *id || teams[Side::Home] == *id;
                         });
  return hasPlayed ? std::optional(shotsOfTeam(*m_catalogue, m_listed, *id)) : std::nullopt;
}

bool SeasonDesk::isOutdated() const {
  return m_season != nullptr &&
         (m_shown.team != m_choice.games.team || m_shown.position != m_choice.position ||
          !std::ranges::equal(m_season->statistics().games(), m_listed));
}

std::shared_ptr<const Season> SeasonDesk::Order::carryOut(const Texts& texts, const TaskWatch& watch) const {
  auto season = std::make_shared<const Season>(catalogue, games, shown, texts, minimum, ownRating, watch);
  return watch.isCancelled() ? nullptr : season;
}

void SeasonDesk::setMinimum(const Qualification& minimum, const Texts& texts) {
  m_minimum = minimum;
  makeAgain(texts);
}

void SeasonDesk::setOwnRating(SeasonRating rating, const Texts& texts) {
  m_ownRating = std::move(rating);
  makeAgain(texts);
}

void SeasonDesk::makeAgain(const Texts& texts) {
  if (m_season != nullptr)
    m_season = std::make_shared<const Season>(*m_season, m_minimum, m_ownRating, texts);
}

// Minimum and rating may have been changed since it was ordered.
void SeasonDesk::takeSeason(std::shared_ptr<const Season> season, const Order& order, const Texts& texts) {
  m_season = std::move(season);
  m_shown = order.shown;
  if (order.minimum != m_minimum || !order.ownRating.isSameAs(m_ownRating))
    makeAgain(texts);
}

} // namespace hooptab
