#include "extracts/VideoClock.h"

#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <cstdio>
#include <ranges>

namespace hooptab {

namespace {

using Times = std::vector<std::optional<VideoTime>>; // by the place in the game's list

constexpr VideoTime kSecond = 1000;

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

// A part of a period in which the clock ran, from its start to its stop, or stood, from a stop to the next
// start; each with both ends.
struct Stretch {
  bool isRunning = false;
  std::vector<std::size_t> places = {};
};

std::vector<Stretch> stretchesOf(const EventList& events) {
  std::vector<Stretch> stretches;
  int period = 0;
  for (std::size_t place = 0; place < events.size(); ++place) {
    const GameEvent& event = events[place];
    if (!counts(event))
      continue;
    if (stretches.empty() || event.period != period)
      stretches.emplace_back();
    period = event.period;
    const bool wasRunning = stretches.back().isRunning;
    if (event.code == EventCode::DEPART) {
      if (!wasRunning)
        stretches.back().places.push_back(place);
      stretches.push_back({true});
    } else if (event.code == EventCode::ARRET && wasRunning) {
      stretches.back().places.push_back(place);
      stretches.push_back({false});
    }
    stretches.back().places.push_back(place);
  }
  return stretches;
}

// Fills in what lies between known times, and beside them.
class Spreading {
 public:
  Spreading(const EventList& events, const Times& known) : m_events(events), m_known(known), m_times(known) {}

  Times spread() {
    const std::vector<Stretch> stretches = stretchesOf(m_events);
    for (const Stretch& stretch : stretches) {
      if (stretch.isRunning)
        spreadRunning(stretch.places);
    }
    for (const Stretch& stretch : stretches) {
      if (!stretch.isRunning)
        spreadStanding(stretch.places);
    }
    return std::move(m_times);
  }

 private:
  [[nodiscard]] int clock(std::size_t place) const { return m_events[place].clockSeconds; }

  void spreadRunning(const std::vector<std::size_t>& places) {
    std::optional<std::size_t> before;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (m_known[places[i]]) {
        before = places[i];
        continue;
      }
      std::optional<std::size_t> behind;
      for (std::size_t j = i + 1; j < places.size() && !behind; ++j) {
        if (m_known[places[j]])
          behind = places[j];
      }
      m_times[places[i]] = runningTime(places[i], before, behind);
    }
  }

  // Between two known times in the measure of the clock; beside one a second is a second.
  [[nodiscard]] std::optional<VideoTime> runningTime(std::size_t place, std::optional<std::size_t> before,
                                                     std::optional<std::size_t> behind) const {
    if (!before && !behind)
      return std::nullopt;
    if (!before)
      return *m_known[*behind] - kSecond * (clock(place) - clock(*behind));
    const VideoTime start = *m_known[*before];
    const int since = clock(*before) - clock(place);
    const int whole = behind ? clock(*before) - clock(*behind) : 0;
    if (whole <= 0 || *m_known[*behind] < start)
      return start + kSecond * since;
    return start + (*m_known[*behind] - start) * std::clamp(since, 0, whole) / whole;
  }

  // What happens while the clock stands is where the stop before it is, free throws where the start behind
  // them is; but nothing that has another clock than that one, for then the clock did run.
  void spreadStanding(const std::vector<std::size_t>& places) {
    Times found(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
      const GameEvent& event = m_events[places[i]];
      if (m_times[places[i]] || event.code == EventCode::DEPART)
        continue;
      const auto before =
          nearest(std::views::reverse(std::views::take(places, static_cast<std::ptrdiff_t>(i))));
      const auto behind = nearest(std::views::drop(places, static_cast<std::ptrdiff_t>(i) + 1));
      const auto there = (event.code == EventCode::GFT && behind) || !before ? behind : before;
      if (there && clock(*there) == event.clockSeconds)
        found[i] = m_times[*there];
    }
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (found[i])
        m_times[places[i]] = found[i];
    }
  }

  [[nodiscard]] std::optional<std::size_t> nearest(std::ranges::input_range auto&& places) const {
    for (const std::size_t place : places) {
      if (m_times[place])
        return place;
    }
    return std::nullopt;
  }

  const EventList& m_events;
  const Times& m_known;
  Times m_times;
};

// A game without time has no clock to go by, nor has one of totals.
Times spread(const Game& game, const Times& known) {
  const bool hasClock = game.details.minutesPerPeriod > 0 && game.details.inputType == 0;
  return hasClock ? Spreading(game.events, known).spread() : known;
}

struct PlacedAnchor {
  std::size_t place = 0;
  VideoAnchor anchor = {};
};

std::vector<PlacedAnchor> placed(const Game& game, const std::vector<VideoAnchor>& anchors,
                                 std::vector<VideoNote>& notes) {
  std::vector<PlacedAnchor> all;
  for (const VideoAnchor& anchor : anchors) {
    const auto found = std::ranges::find_if(
        game.events, [&](const GameEvent& event) { return event.number == anchor.event && counts(event); });
    if (found == game.events.end())
      notes.push_back({VideoProblem::UnknownEvent, anchor.event, 0});
    else
      all.push_back({static_cast<std::size_t>(found - game.events.begin()), anchor});
  }
  std::ranges::stable_sort(all, {}, &PlacedAnchor::place);
  std::vector<PlacedAnchor> inOrder;
  for (const PlacedAnchor& next : all) {
    const bool isCrossed = !inOrder.empty() && (inOrder.back().place == next.place ||
                                                inOrder.back().anchor.time > next.anchor.time);
    if (isCrossed)
      notes.push_back({VideoProblem::Crossed, inOrder.back().anchor.event, next.anchor.event});
    else
      inOrder.push_back(next);
  }
  return inOrder;
}

Times timesByAnchors(const Game& game, const std::vector<PlacedAnchor>& anchors) {
  Times known(game.events.size());
  for (const PlacedAnchor& each : anchors)
    known[each.place] = each.anchor.time;
  return spread(game, known);
}

Times timesByWallClock(const ExtractSource& source, const std::vector<PlacedAnchor>& anchors) {
  const Game& game = source.game();
  Times known(game.events.size());
  std::size_t place = 0;
  for (const GameEvent& event : game.events) {
    const auto found = source.wallClock.find(event.number);
    if (counts(event) && found != source.wallClock.end())
      known[place] = found->second;
    ++place;
  }
  Times times = spread(game, known);
  std::vector<std::pair<std::size_t, VideoTime>> shifts; // from which place on, by how much
  for (const PlacedAnchor& each : anchors) {
    if (times[each.place])
      shifts.emplace_back(each.place, each.anchor.time - *times[each.place]);
  }
  if (shifts.empty())
    return Times(game.events.size());
  auto shift = shifts.begin();
  for (place = 0; place < times.size(); ++place) {
    while (shift + 1 != shifts.end() && (shift + 1)->first <= place)
      ++shift;
    if (times[place])
      *times[place] += shift->second;
  }
  return times;
}

std::optional<VideoTime> readTime(std::string_view text) {
  constexpr int kMostParts = 3;
  const std::size_t point = std::min(text.find_first_of(".,"), text.size());
  VideoTime fraction = 0;
  if (point < text.size()) {
    std::string digits(text.substr(point + 1, 3));
    if (digits.empty() || Module1::wholeNumber(text.substr(point + 1)) < 0)
      return std::nullopt;
    digits.resize(3, '0');
    fraction = Module1::wholeNumber(digits);
  }
  VideoTime seconds = 0;
  int parts = 0;
  for (const auto part : std::views::split(text.substr(0, point), ':')) {
    const int number = Module1::wholeNumber(std::string_view(part.begin(), part.end()));
    if (number < 0 || ++parts > kMostParts || (parts > 1 && number > 59))
      return std::nullopt;
    seconds = seconds * 60 + number;
  }
  return parts == 0 ? std::nullopt : std::optional(seconds * kSecond + fraction);
}

} // namespace

std::optional<VideoAnchor> readAnchor(std::string_view text) {
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos)
    return std::nullopt;
  const int event = Module1::wholeNumber(text.substr(0, equals));
  const auto time = readTime(text.substr(equals + 1));
  return event < 1 || !time ? std::nullopt : std::optional(VideoAnchor{event, *time});
}

std::string videoTimeText(VideoTime time) {
  const VideoTime seconds = std::max<VideoTime>(time, 0) / kSecond;
  const VideoTime hours = seconds / 3600;
  char text[48];
  if (hours > 0)
    std::snprintf(text, sizeof text, "%lld:%02d:%02d", static_cast<long long>(hours),
                  static_cast<int>(seconds / 60 % 60), static_cast<int>(seconds % 60));
  else
    std::snprintf(text, sizeof text, "%d:%02d", static_cast<int>(seconds / 60),
                  static_cast<int>(seconds % 60));
  return text;
}

std::string inWords(const VideoNote& note, const Texts& texts) {
  const Text text = note.problem == VideoProblem::UnknownEvent ? Text::AnchorUnknown
                    : note.problem == VideoProblem::Crossed    ? Text::AnchorsCrossed
                    : note.problem == VideoProblem::Unreached  ? Text::WithoutVideoTime
                                                               : Text::ChaptersTooFew;
  return withPlaceholders(texts.text(text), std::to_string(note.x), std::to_string(note.y));
}

VideoTimes videoTimes(const ExtractSource& source, const std::vector<VideoAnchor>& anchors) {
  const Game& game = source.game();
  VideoTimes result;
  const std::vector<PlacedAnchor> inOrder = placed(game, anchors, result.notes);
  result.times = timesByWallClock(source, inOrder);
  const Times byAnchors = timesByAnchors(game, inOrder);
  int all = 0;
  int unreached = 0;
  std::size_t place = 0;
  for (const GameEvent& event : game.events) {
    if (!result.times[place])
      result.times[place] = byAnchors[place];
    const bool isOfGame = counts(event) && !event.isClock();
    all += isOfGame ? 1 : 0;
    unreached += isOfGame && !result.times[place] ? 1 : 0;
    ++place;
  }
  if (unreached > 0)
    result.notes.push_back({VideoProblem::Unreached, unreached, all});
  return result;
}

} // namespace hooptab
