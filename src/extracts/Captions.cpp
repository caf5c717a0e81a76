#include "extracts/Captions.h"

#include "game/EventWords.h"
#include "game/RunningScore.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <cstdio>

namespace hooptab {

namespace {

// How long the last caption stands, after the last event.
constexpr VideoTime kLastCaption = 10'000;

// "01:04:12.500", as captions ask for.
std::string timeText(VideoTime time) {
  char text[64];
  std::snprintf(text, sizeof text, "%02lld:%02d:%02d.%03d", static_cast<long long>(time / 3'600'000),
                static_cast<int>(time / 60'000 % 60), static_cast<int>(time / 1000 % 60),
                static_cast<int>(time % 1000));
  return text;
}

// A caption is markup: a name in it must be none, and no arrow between times.
std::string escaped(std::string_view text) {
  std::string result;
  for (const char letter : printable(text)) {
    if (letter == '&')
      result += "&amp;";
    else if (letter == '<')
      result += "&lt;";
    else if (letter == '>')
      result += "&gt;";
    else
      result += letter;
  }
  return result;
}

struct Caption {
  VideoTime start = 0;
  std::string text;
};

class CaptionMaker {
 public:
  CaptionMaker(const Game& game, const VideoTimes& times, const Texts& texts)
      : m_game(game), m_times(times), m_words(game, texts), m_texts(texts) {}

  std::string text() {
    std::string all = "WEBVTT\n";
    const VideoTime end = collect();
    for (std::size_t i = 0; i < m_captions.size(); ++i) {
      const VideoTime until = i + 1 < m_captions.size() ? m_captions[i + 1].start : end + kLastCaption;
      all +=
          '\n' + timeText(m_captions[i].start) + " --> " + timeText(until) + '\n' + m_captions[i].text + '\n';
    }
    return all;
  }

 private:
  // Whose time was not known stands in the score of the next caption. Returns the time of the last event.
  VideoTime collect() {
    const Scores scores = runningScore(m_game.events);
    int period = 0;
    VideoTime last = 0;
    for (std::size_t place = 0; place < m_game.events.size(); ++place) {
      const GameEvent& event = m_game.events[place];
      const auto time = m_times.at(place);
      if (!event.isUnderstood || event.isDeleted || !time || *time < 0)
        continue;
      last = std::max(last, *time);
      const bool isScore = event.isShot() && event.isMade;
      if (!isScore && event.period == period)
        continue;
      period = event.period;
      add(*time, caption(place, scores[place]) + (isScore ? '\n' + escaped(m_words.words(place)) : ""));
    }
    return last;
  }
  // Of two at one time the later one stands; none goes back in time.
  void add(VideoTime start, std::string text) {
    while (!m_captions.empty() && m_captions.back().start >= start)
      m_captions.pop_back();
    m_captions.push_back({start, std::move(text)});
  }
  [[nodiscard]] std::string caption(std::size_t place, const PerSide<int>& score) const {
    const int period = m_game.events[place].period;
    return escaped(std::string(m_words.team(Side::Visitor)) + ' ' + std::to_string(score[Side::Visitor]) +
                   " - " + std::to_string(score[Side::Home]) + ' ' + std::string(m_words.team(Side::Home)) +
                   "   " + std::string(m_texts.text(Text::Period)) + ' ' + m_words.periodText(period));
  }

  const Game& m_game;
  const VideoTimes& m_times;
  EventWords m_words;
  const Texts& m_texts;
  std::vector<Caption> m_captions;
};

} // namespace

CaptionList captionsOf(const ExtractSource& source, const std::vector<VideoAnchor>& anchors,
                       const Texts& texts) {
  const VideoTimes times = videoTimes(source, anchors);
  return {CaptionMaker(source.game(), times, texts).text(), times.notes};
}

} // namespace hooptab
