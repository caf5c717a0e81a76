#include "extracts/Chapters.h"

#include "game/EventWords.h"
#include "game/RunningScore.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

struct Chapter {
  VideoTime time = 0;
  enum class Rank { Period, TimeOut, Run } rank = Rank::Period; // the first goes before
  std::string title;
};

// On one line, no longer than is shown, and without the signs that a description may not have.
std::string shownTitle(std::string_view title) {
  std::string shown;
  const std::string plain = printable(title);
  std::string_view rest = plain;
  std::size_t end = 0; // of what is shown where the title is too long
  for (std::size_t letters = 0; !rest.empty(); ++letters) {
    if (letters == kLongestChapterTitle)
      return shown.substr(0, end) + "…";
    const CodePoint letter = takeCodePoint(rest);
    shown += letter.value == '<'   ? std::string_view("‹")
             : letter.value == '>' ? std::string_view("›")
                                   : letter.bytes;
    if (letters + 2 == kLongestChapterTitle)
      end = shown.size();
  }
  return shown;
}

class ChapterMaker {
 public:
  ChapterMaker(const Game& game, const VideoTimes& times, const Texts& texts)
      : m_game(game), m_times(times), m_texts(texts), m_words(game, texts),
        m_scores(runningScore(game.events)) {}

  std::vector<Chapter> chapters() {
    addPeriods();
    for (std::size_t place = 0; place < m_game.events.size(); ++place) {
      const GameEvent& event = m_game.events[place];
      if (event.isUnderstood && !event.isDeleted && event.code == EventCode::XTO)
        add(place, Chapter::Rank::TimeOut, m_words.words(place) + ", " + score(place));
    }
    for (const ChapterRun& run : runsOf(m_game.events))
      add(run.place, Chapter::Rank::Run,
          withPlaceholders(m_texts.text(Text::RunChapter), m_words.team(run.team),
                           std::to_string(run.points)));
    begin();
    return std::move(m_chapters);
  }

 private:
  // The score as it stood before the event.
  [[nodiscard]] std::string score(std::size_t place) const {
    const PerSide<int> points = place == 0 ? PerSide<int>{} : m_scores[place - 1];
    return std::string(m_words.team(Side::Visitor)) + ' ' + std::to_string(points[Side::Visitor]) + " - " +
           std::to_string(points[Side::Home]) + ' ' + std::string(m_words.team(Side::Home));
  }
  void add(std::size_t place, Chapter::Rank rank, std::string title) {
    if (const auto time = m_times.at(place); time && *time >= 0)
      m_chapters.push_back({*time, rank, std::move(title)});
  }
  // A period begins with the first start of its clock; where that has no time, with the first event that has.
  void addPeriods() {
    int period = 0;
    for (std::size_t place = 0; place < m_game.events.size(); ++place) {
      const GameEvent& event = m_game.events[place];
      if (!event.isUnderstood || event.isDeleted || event.period == period || !m_times.at(place) ||
          event.code == EventCode::ARRET)
        continue;
      period = event.period;
      const bool isOvertime = m_game.details.periods > 0 && period > m_game.details.periods;
      const std::string name = m_words.periodText(period);
      add(place, Chapter::Rank::Period,
          (isOvertime ? name : m_texts.withPlaceholder(Text::PeriodNumber, name)) + ", " + score(place));
    }
  }
  // The first is at 0:00: the best of those that are too near, else one of the whole game.
  void begin() {
    std::ranges::stable_sort(m_chapters, {}, &Chapter::time);
    const auto near = std::ranges::find_if(
        m_chapters, [](const Chapter& chapter) { return chapter.time >= kShortestChapter; });
    const auto best = std::ranges::min_element(m_chapters.begin(), near, {}, &Chapter::rank);
    Chapter first = {0, Chapter::Rank::Period,
                     std::string(m_words.team(Side::Visitor)) + " - " +
                         std::string(m_words.team(Side::Home))};
    if (best != near) {
      first.title = std::move(best->title);
      m_chapters.erase(best);
    }
    if (best != near || !m_chapters.empty())
      m_chapters.insert(m_chapters.begin(), std::move(first));
  }

  const Game& m_game;
  const VideoTimes& m_times;
  const Texts& m_texts;
  EventWords m_words;
  Scores m_scores;
  std::vector<Chapter> m_chapters;
};

// By rank, each that is far enough from those before it in rank.
std::vector<Chapter> apart(std::vector<Chapter> chapters) {
  std::ranges::stable_sort(chapters, {}, &Chapter::rank);
  std::vector<Chapter> kept;
  for (Chapter& chapter : chapters) {
    // As it is written, in whole seconds.
    chapter.time -= chapter.time % 1000;
    const bool isNear = std::ranges::any_of(kept, [&](const Chapter& other) {
      return std::max(other.time, chapter.time) - std::min(other.time, chapter.time) < kShortestChapter;
    });
    if (!isNear)
      kept.push_back(std::move(chapter));
  }
  std::ranges::sort(kept, {}, &Chapter::time);
  return kept;
}

} // namespace

ChapterList chaptersOf(const ExtractSource& source, const std::vector<VideoAnchor>& anchors,
                       const Texts& texts) {
  const VideoTimes times = videoTimes(source, anchors);
  ChapterList list;
  list.notes = times.notes;
  const std::vector<Chapter> chapters = apart(ChapterMaker(source.game(), times, texts).chapters());
  if (chapters.size() < kFewestChapters) {
    list.notes.push_back(
        {VideoProblem::TooFew, static_cast<int>(chapters.size()), static_cast<int>(kFewestChapters)});
    return list;
  }
  for (const Chapter& chapter : chapters)
    list.text += videoTimeText(chapter.time) + ' ' + shownTitle(chapter.title) + '\n';
  return list;
}

std::vector<ChapterRun> runsOf(const EventList& events) {
  std::vector<ChapterRun> runs;
  ChapterRun run;
  const auto close = [&] {
    if (run.points >= kShortestRun)
      runs.push_back(run);
  };
  std::size_t place = 0;
  for (const GameEvent& event : events) {
    if (event.isUnderstood && !event.isDeleted && event.isShot() && event.isMade) {
      if (run.points == 0 || run.team != event.player.team) {
        close();
        run = {place, *event.player.team, 0};
      }
      run.points += event.kind()->points;
    }
    ++place;
  }
  close();
  return runs;
}

} // namespace hooptab
