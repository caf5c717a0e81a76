#include "season/EventSearch.h"

#include "catalogue/Jersey.h"
#include "game/EventWords.h"
#include "insight/GameWalk.h"
#include "storage/AtomicFile.h"

#include <algorithm>
#include <cstdlib>

namespace hooptab {

namespace {

class GameSearch {
 public:
  GameSearch(const Game& game, const ListedGame& listed, const EventCriteria& criteria)
      : m_game(game), m_listed(listed), m_criteria(criteria) {}

  [[nodiscard]] bool fits(const GameEvent& event, const WalkedEvent& walked) const {
    return fitsWhat(event) && fitsWho(event) && fitsWhen(event) &&
           (!m_criteria.margin ||
            std::abs(walked.before[Side::Visitor] - walked.before[Side::Home]) <= *m_criteria.margin);
  }

 private:
  [[nodiscard]] bool fitsWhat(const GameEvent& event) const {
    if (event.isClock() || (m_criteria.isMade && (!event.isShot() || event.isMade != *m_criteria.isMade)))
      return false;
    return m_criteria.kinds.empty() ||
           std::ranges::find(m_criteria.kinds, event.code) != m_criteria.kinds.end();
  }
  [[nodiscard]] bool fitsWho(const GameEvent& event) const {
    const PlayerReference& player = event.player;
    if (m_criteria.team && (!player.team || m_listed.team[*player.team] != *m_criteria.team))
      return false;
    return !m_criteria.jersey ||
           (event.isOfPlayer() && canonicalJersey(std::string(player.jersey)) == *m_criteria.jersey);
  }
  [[nodiscard]] bool fitsWhen(const GameEvent& event) const {
    const int regular = m_game.details.periods;
    const bool isOvertime = event.period > regular;
    const bool asksPeriod = m_criteria.fromPeriod || m_criteria.isOvertime;
    if (asksPeriod) {
      const bool isInPeriods = m_criteria.fromPeriod && event.period >= *m_criteria.fromPeriod &&
                               event.period <= *m_criteria.toPeriod;
      if (!isInPeriods && !(m_criteria.isOvertime && isOvertime))
        return false;
    }
    if (!m_criteria.lastSeconds)
      return true;
    return m_game.details.minutesPerPeriod > 0 && event.clockSeconds <= *m_criteria.lastSeconds &&
           (asksPeriod || event.period >= regular);
  }

  const Game& m_game;
  const ListedGame& m_listed;
  const EventCriteria& m_criteria;
};

bool readEvents(FileSystem& files, const std::string& path, Game& game) {
  std::string bytes;
  FileStamp stamp;
  if (readWholeFile(files, path, bytes, stamp) != ReadOutcome::Read)
    return false;
  readGame(ProfileText(std::move(bytes)), game);
  return true;
}

void searchGame(const Game& game, const ListedGame& listed, std::size_t place, const EventCriteria& criteria,
                const Texts& texts, FoundEvents& found) {
  const GameSearch search(game, listed, criteria);
  const EventWords words(game, texts);
  const std::size_t before = found.events.size();
  for (const WalkedEvent& walked : walkGame(game).events) {
    const GameEvent& event = game.events[walked.place];
    if (!search.fits(event, walked))
      continue;
    if (found.events.size() == FoundEvents::kMost) {
      found.isCut = true;
      break;
    }
    found.events.push_back({place, event.period, event.clockSeconds, walked.after,
                            words.periodText(event.period), words.clock(walked.place),
                            words.words(walked.place)});
  }
  found.games += found.events.size() > before ? 1U : 0U;
}

} // namespace

FoundEvents searchEvents(FileSystem& files, const GameCatalogue& catalogue,
                         std::span<const std::size_t> games, const EventCriteria& criteria,
                         const Texts& texts, const TaskWatch& watch) {
  FoundEvents found;
  watch.progress(0, games.size());
  for (const std::size_t place : games) {
    if (watch.isCancelled() || found.isCut)
      break;
    const ListedGame& listed = catalogue.games()[place];
    Game game;
    if (listed.isFromEvents() && readEvents(files, listed.path, game))
      searchGame(game, listed, place, criteria, texts, found);
    watch.advance();
  }
  return found;
}

std::string queryWords(const EventCriteria& criteria, const GameCatalogue& catalogue, const Texts& texts) {
  std::string words;
  const auto add = [&words](const std::string& more) { words += (words.empty() ? "" : " · ") + more; };
  const auto text = [&texts](Text which) { return std::string(texts.text(which)); };
  std::string kinds;
  for (const EventKind& kind : kEventKinds) {
    if (std::ranges::find(criteria.kinds, kind.code) != criteria.kinds.end())
      kinds += (kinds.empty() ? "" : ", ") + text(kind.wordsText);
  }
  for (const EventKind& kind : kTeamKinds) {
    if (std::ranges::find(criteria.kinds, kind.code) != criteria.kinds.end())
      kinds += (kinds.empty() ? "" : ", ") + text(kind.wordsText);
  }
  add(kinds.empty() ? text(Text::SearchAnyKind) : kinds);
  if (criteria.isMade)
    add(text(*criteria.isMade ? Text::Made : Text::Missed));
  if (criteria.jersey)
    add(text(Text::SearchWho) + " " + *criteria.jersey);
  if (criteria.team)
    add(catalogue.teams()[*criteria.team].key);
  for (int period = criteria.fromPeriod.value_or(1); period <= criteria.toPeriod.value_or(0); ++period)
    add(texts.withPlaceholder(Text::PeriodNumber, std::to_string(period)));
  if (criteria.isOvertime)
    add(text(Text::Overtime));
  if (criteria.lastSeconds) {
    const int seconds = *criteria.lastSeconds;
    add(text(Text::SearchWhenLast) + " " +
        (seconds % 60 == 0 ? texts.withPlaceholder(Text::SearchMinutes, std::to_string(seconds / 60))
                           : std::to_string(seconds) + " s"));
  }
  if (criteria.margin)
    add(text(Text::SearchMargin) + " " +
        texts.withPlaceholder(Text::SearchMarginPoints, std::to_string(*criteria.margin)));
  return words;
}

} // namespace hooptab
