#include "review/ShownGame.h"

#include "game/PeriodName.h"
#include "game/Tally.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

namespace hooptab {

void ShownGame::show(std::shared_ptr<const CountedGame> whole) {
  m_whole = std::move(whole);
  count();
}

void ShownGame::choose(const std::optional<Stretch>& stretch) {
  m_stretch = stretch;
  if (hasGame())
    count();
}

void ShownGame::count() {
  m_insight = insightOf(m_whole->game);
  m_starters = m_insight.starters;
  m_shown = m_whole;
  if (!m_stretch)
    return;
  m_shown = countStretch(m_whole->game, *m_stretch);
  m_insight = insightOf(m_shown->game, m_starters);
}

std::optional<std::size_t> ShownGame::shownPlace(std::size_t event) const {
  if (!m_stretch)
    return event;
  const GameEvent& wanted = m_whole->game.events[event];
  std::size_t place = 0;
  for (const GameEvent& each : m_shown->game.events) {
    if (each.period == wanted.period && each.key == wanted.key)
      return place;
    ++place;
  }
  return std::nullopt;
}

std::shared_ptr<const CountedGame> countStretch(const Game& game, const Stretch& stretch) {
  auto counted = std::make_shared<CountedGame>();
  counted->game = gameOfStretch(game, stretch);
  // A count that leaves its range is told of the whole game.
  [[maybe_unused]] const auto outOfRange =
      Tally::run(counted->state, counted->game.events, counted->game.roster[Side::Visitor],
                 counted->game.roster[Side::Home]);
  return counted;
}

std::string stretchWords(const Game& game, const Stretch& stretch, const Texts& texts) {
  const auto name = [&](int period) { return periodName(period, game.details.periods, texts); };
  const auto period = [&](int number) { return texts.withPlaceholder(Text::PeriodNumber, name(number)); };
  const auto fromTo = [&](const std::string& from, const std::string& to) {
    return withPlaceholders(texts.text(Text::StretchFromTo), from, to);
  };
  const bool fromBegin = stretch.fromClock == Stretch::kPeriodBegin;
  if (fromBegin && stretch.toClock == 0) {
    if (stretch.isWithinOnePeriod())
      return period(stretch.fromPeriod);
    return fromTo(period(stretch.fromPeriod), period(stretch.toPeriod));
  }
  // A period begins at the clock of its first event.
  const auto first = game.events.ofPeriod(stretch.fromPeriod);
  const std::string from =
      Module1::clockText(fromBegin && !first.empty() ? first.front().clockSeconds : stretch.fromClock);
  const std::string to = Module1::clockText(stretch.toClock);
  const auto at = [&](int number, const std::string& clock) {
    return withPlaceholders(texts.text(Text::StretchInPeriod), name(number), clock);
  };
  if (stretch.isWithinOnePeriod())
    return at(stretch.fromPeriod, fromTo(from, to));
  return fromTo(at(stretch.fromPeriod, from), at(stretch.toPeriod, to));
}

std::string scoreWords(const CountedGame& counted) {
  const auto& names = counted.game.details.abbreviation;
  return names[Side::Visitor] + ' ' + std::to_string(counted.state.points(Side::Visitor)) + "–" +
         std::to_string(counted.state.points(Side::Home)) + ' ' + names[Side::Home];
}

} // namespace hooptab
