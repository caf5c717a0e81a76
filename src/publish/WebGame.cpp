#include "publish/WebGame.h"

#include "feed/FeedBench.h"
#include "publish/JsonLines.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::int64_t kMilliseconds = 1000; // in a second
constexpr std::int64_t kBetweenBeats = 2 * kMilliseconds;

// Whether another game was opened, so that nothing that was told holds.
bool areOneGame(const WebGame::Shown& before, const WebGame::Shown& after) {
  if (!before || !after)
    return !before && !after;
  const GameDetails& one = before->counted.game.details;
  const GameDetails& other = after->counted.game.details;
  // A game of an older program gets its id when somebody records it again.
  const bool haveOneId = one.id == other.id || one.id.empty() || other.id.empty();
  return haveOneId && one.date == other.date && std::ranges::all_of(kSides, [&](Side team) {
           return one.abbreviation[team] == other.abbreviation[team];
         });
}

} // namespace

WebGame::WebGame(const Texts& texts, const FeedOptions& options) : m_texts(texts), m_options(options) {
  publish({});
}

void WebGame::show(const Moment& moment) {
  const bool isAnother = !areOneGame(m_now.game, moment.game);
  m_now = moment;
  m_record.reset();
  showBenches(moment.at);
  showDirect(isAnother);
  if (m_options.delaySeconds == 0)
    publish(m_now);
  else
    m_waiting.push_back(m_now);
}

void WebGame::setOptions(const FeedOptions& options, std::int64_t now) {
  m_options = options;
  if (options.delaySeconds == 0 && !m_waiting.empty())
    m_public = m_waiting.back();
  if (options.delaySeconds == 0)
    m_waiting.clear();
  const Moment shown = m_public;
  m_public = {};
  m_feed->show(feedWithoutGame({}, m_options), true); // what was told of names may hold no longer
  publish(shown);
  tick(now);
}

void WebGame::tick(std::int64_t now) {
  while (!m_waiting.empty() && m_waiting.front().at + m_options.delaySeconds * kMilliseconds <= now) {
    publish(m_waiting.front());
    m_waiting.pop_front();
  }
  if (m_now.game && m_now.isClockKnown && m_now.game->phase == LiveGame::Phase::Running)
    showBenches(now);
  if (now - m_beaten < kBetweenBeats && now >= m_beaten)
    return;
  m_beaten = now;
  m_feed->beat(now);
  if (m_direct)
    m_direct->beat(now);
  for (const Desk& desk : m_desks)
    desk.stream->beat(now);
}

bool WebGame::isHeard() const {
  return m_feed->isHeard() || (m_direct && m_direct->isHeard()) ||
         std::ranges::any_of(m_desks, [](const Desk& desk) { return desk.stream->isHeard(); });
}

const std::shared_ptr<FeedChannel>& WebGame::direct() {
  if (!m_direct) {
    m_direct = std::make_shared<FeedChannel>();
    showDirect(true);
  }
  return m_direct;
}

void WebGame::showDirect(bool isAnother) {
  if (m_direct)
    m_direct->show(textOf(m_now, {.first = m_options.first}), isAnother);
}

std::string WebGame::textOf(const Moment& moment, const FeedOptions& options) const {
  const FeedMoment told{.id = {}, .at = moment.isClockKnown ? std::optional(moment.at) : std::nullopt};
  return moment.game ? feedGame(*moment.game, told, options, m_texts) : feedWithoutGame(told, options);
}

void WebGame::publish(const Moment& moment) {
  const bool isAnother = !areOneGame(m_public.game, moment.game);
  m_public = moment;
  m_feed->show(textOf(moment, m_options), isAnother);
}

void WebGame::showBenches(std::int64_t now) {
  std::erase_if(m_desks, [](const Desk& desk) { return desk.stream.use_count() == 1; });
  for (const Desk& desk : m_desks)
    desk.stream->show(benchText(desk.us, desk.language, now));
}

// The record is of the last change; the clock of a game that runs goes on since then.
std::string WebGame::benchText(Side us, Language language, std::int64_t now) {
  m_texts.setLanguage(language);
  FeedMoment moment{.id = m_feed->id(), .at = std::nullopt};
  if (!m_now.game)
    return inOneLine(feedWithoutGame(moment, {}));
  if (!m_record)
    m_record.emplace(*m_now.game);
  if (!m_now.isClockKnown)
    return inOneLine(feedBench(*m_now.game, *m_record, us, moment, m_texts));
  RunningGame game = *m_now.game;
  moment.at = now;
  if (game.phase == LiveGame::Phase::Running)
    game.clockSeconds = std::max(game.clockSeconds - static_cast<int>((now - m_now.at) / kMilliseconds), 0);
  return inOneLine(feedBench(game, *m_record, us, moment, m_texts));
}

std::shared_ptr<const std::string> WebGame::bench(Side us, Language language, std::int64_t now) {
  return std::make_shared<const std::string>(benchText(us, language, now) + '\n');
}

std::shared_ptr<BenchStream> WebGame::benchStream(Side us, Language language, std::int64_t now) {
  const auto found = std::ranges::find_if(
      m_desks, [&](const Desk& desk) { return desk.us == us && desk.language == language; });
  if (found != m_desks.end())
    return found->stream;
  m_desks.push_back({std::make_shared<BenchStream>(), us, language});
  m_desks.back().stream->show(benchText(us, language, now));
  return m_desks.back().stream;
}

} // namespace hooptab
