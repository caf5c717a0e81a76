#include "game/EventList.h"

#include "storage/cinifile.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace hooptab {

namespace {

struct OwnedEvent {
  std::shared_ptr<const std::string> text;
  GameEvent event;
};
OwnedEvent ownedEvent(int period, std::string_view key, std::string_view line) {
  auto text = std::make_shared<std::string>(key);
  text->append(line);
  const std::string_view all = *text;
  const std::size_t length = readablePart(line).size();
  OwnedEvent owned{text, GameEvent::parse(period, all.substr(0, key.size()), all.substr(key.size(), length))};
  owned.event.unread = static_cast<std::uint32_t>(line.size() - length);
  return owned;
}

auto placeIn(std::vector<GameEvent>& events, std::string_view key) {
  return std::ranges::find(events, key, &GameEvent::key);
}

bool isEqual(const GameEvent& one, const GameEvent& other) {
  return one.period == other.period && one.key == other.key && one.whole() == other.whole();
}

} // namespace

std::string_view readablePart(std::string_view line) {
  if (line.size() <= cinifile::kLongestValue)
    return line;
  std::size_t characters = 0;
  for (std::size_t place = 0; place < line.size(); ++place) {
    const bool isContinued = (static_cast<unsigned char>(line[place]) & 0xC0U) == 0x80U;
    if (!isContinued && ++characters > cinifile::kLongestValue)
      return line.substr(0, place);
  }
  return line;
}

std::size_t EventList::partOf(std::size_t index) const {
  return static_cast<std::size_t>(std::ranges::upper_bound(m_periods, index, {}, &Part::end) -
                                  m_periods.begin());
}

std::vector<EventList::Part>::const_iterator EventList::partOfPeriod(int period) const {
  return std::ranges::lower_bound(m_periods, period, {},
                                  [](const Part& part) { return part.period->number; });
}

void EventList::Iterator::seek(std::size_t index) {
  const std::size_t part = m_list->partOf(index);
  m_begin = part == 0 ? 0 : m_list->m_periods[part - 1].end;
  const bool isBehindAll = part == m_list->m_periods.size();
  const std::span<const GameEvent> events =
      isBehindAll ? std::span<const GameEvent>() : m_list->m_periods[part].period->events;
  m_first = events.data();
  m_last = m_first + events.size();
  m_here = m_first + (index - m_begin);
}

const GameEvent& EventList::operator[](std::size_t index) const {
  const std::size_t part = partOf(index);
  return m_periods[part].period->events[index - (part == 0 ? 0 : m_periods[part - 1].end)];
}

std::span<const GameEvent> EventList::ofPeriod(int period) const {
  const auto part = partOfPeriod(period);
  return part == m_periods.end() || part->period->number != period ? std::span<const GameEvent>()
                                                                   : part->period->events;
}

std::size_t EventList::endOfPeriod(int period) const {
  const auto behind =
      std::ranges::upper_bound(m_periods, period, {}, [](const Part& part) { return part.period->number; });
  return behind == m_periods.begin() ? 0 : std::prev(behind)->end;
}

std::optional<std::size_t> EventList::indexOf(int period, std::string_view key) const {
  const auto events = ofPeriod(period);
  const auto found = std::ranges::find(events, key, &GameEvent::key);
  return found == events.end()
             ? std::nullopt
             : std::optional(endOfPeriod(period) - static_cast<std::size_t>(events.end() - found));
}

const GameEvent* EventList::find(int period, std::string_view key) const {
  const auto events = ofPeriod(period);
  const auto found = std::ranges::find(events, key, &GameEvent::key);
  return found == events.end() ? nullptr : &*found;
}

EventList::Common EventList::inCommonWith(const EventList& other) const {
  const std::size_t most = std::min(size(), other.size());
  const std::size_t parts = std::min(m_periods.size(), other.m_periods.size());
  Common common;
  std::size_t part = 0;
  while (part < parts && m_periods[part].period == other.m_periods[part].period)
    common.head = m_periods[part++].end;
  while (common.head < most && isEqual((*this)[common.head], other[common.head]))
    ++common.head;
  const std::size_t left = most - common.head;
  for (part = 0; part < parts; ++part) {
    const Part& last = m_periods[m_periods.size() - 1 - part];
    if (last.period != other.m_periods[other.m_periods.size() - 1 - part].period ||
        common.tail + last.period->events.size() > left)
      break;
    common.tail += last.period->events.size();
  }
  while (common.tail < left &&
         isEqual((*this)[size() - 1 - common.tail], other[other.size() - 1 - common.tail]))
    ++common.tail;
  return common;
}

// That nobody else holds a period is seen only behind what the last other one did with it, on whatever
// thread.
EventList::Period& EventList::changed(int period) {
  const auto place = m_periods.begin() + (partOfPeriod(period) - m_periods.cbegin());
  if (place == m_periods.end() || place->period->number != period) {
    auto made = std::make_shared<Period>();
    made->number = period;
    const std::size_t end = place == m_periods.begin() ? 0 : std::prev(place)->end;
    return *m_periods.insert(place, {std::move(made), end})->period;
  }
  if (place->period.use_count() > 1)
    place->period = std::make_shared<Period>(*place->period);
  else
    std::atomic_thread_fence(std::memory_order_acquire);
  return *place->period;
}

void EventList::setEnds() {
  std::size_t end = 0;
  for (Part& part : m_periods)
    part.end = end += part.period->events.size();
}

EventList::Filling::Filling(EventList& list, int period, std::shared_ptr<const std::string> text,
                            std::size_t most)
    : m_list(list), m_period(list.changed(period)) {
  m_period.texts.push_back(std::move(text));
  m_period.events.reserve(m_period.events.size() + most);
}

// A file may have very many periods, and they come one behind the other.
EventList::Filling::~Filling() {
  std::vector<Part>& parts = m_list.m_periods;
  if (parts.back().period.get() != &m_period) {
    m_list.setEnds();
    return;
  }
  const std::size_t before = parts.size() == 1 ? 0 : parts[parts.size() - 2].end;
  parts.back().end = before + m_period.events.size();
}

void EventList::Filling::appendOwned(std::string_view key, std::string_view line) {
  OwnedEvent owned = ownedEvent(m_period.number, key, line);
  m_period.events.push_back(owned.event);
  m_period.texts.push_back(std::move(owned.text));
}

void EventList::appendOwned(int period, std::string_view key, std::string_view line) {
  OwnedEvent owned = ownedEvent(period, key, line);
  Period& kept = changed(period);
  kept.events.push_back(owned.event);
  kept.texts.push_back(std::move(owned.text));
  setEnds();
}

void EventList::setPeriod(int period, const PeriodLines& lines) {
  Period& kept = changed(period);
  kept.events.clear();
  kept.texts.clear();
  for (const auto& [key, line] : lines) {
    OwnedEvent owned = ownedEvent(period, key, line);
    kept.events.push_back(owned.event);
    kept.texts.push_back(std::move(owned.text));
  }
  setEnds();
}

bool EventList::apply(const EventChange& change) {
  const bool isThere = find(change.period, change.key) != nullptr;
  if (isThere == (change.kind == EventChange::Kind::Add) ||
      (!change.before.empty() && find(change.period, change.before) == nullptr))
    return false;
  if (change.kind == EventChange::Kind::Move && change.before == change.key)
    return true;
  if (change.kind == EventChange::Kind::Add && change.before.empty()) {
    appendOwned(change.period, change.key, change.line);
    return true;
  }
  Period& period = changed(change.period);
  OwnedEvent owned;
  if (change.kind != EventChange::Kind::Move) {
    owned = ownedEvent(change.period, change.key, change.line);
    period.texts.push_back(std::move(owned.text));
  }
  const auto event = placeIn(period.events, change.key);
  if (change.kind == EventChange::Kind::Replace) {
    *event = owned.event;
    return true;
  }
  if (isThere) {
    owned.event = *event;
    period.events.erase(event);
  }
  period.events.insert(change.before.empty() ? period.events.end() : placeIn(period.events, change.before),
                       owned.event);
  setEnds();
  return true;
}

} // namespace hooptab
