#include "totals/ManualTotals.h"

#include "game/GameEvent.h"

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

// The kinds in the order in which a player's lines are written; of a shot the made ones before the missed
// ones.
constexpr EventCode kCounted[] = {
    EventCode::SA,  EventCode::SU1, EventCode::SU2, EventCode::SBS, EventCode::SDR,
    EventCode::SPF, EventCode::SST, EventCode::STF, EventCode::STO, EventCode::SOR,
    EventCode::GDK, EventCode::GPB, EventCode::GLG, EventCode::GLD, EventCode::GFT,
};
constexpr EventCode kPlaced[] = {EventCode::GFG, EventCode::GF3};
static_assert(std::size(kCounted) + std::size(kPlaced) == kEventKinds.size(),
              "a kind that would not be written");
constexpr std::string_view kClock = "00:00";

bool isFull(int count) {
  return count >= ManualTotals::kLargestCount;
}

void change(std::int16_t& count, int by) {
  count = static_cast<std::int16_t>(count + by);
}

// The field goals that a counter counts; nothing for all other counters.
struct PlacedCounter {
  EventCode code;
  bool isMade;
};
std::optional<PlacedCounter> placedCounter(Counter counter) {
  for (const EventCode code : kPlaced) {
    if (kindOf(code)->counter == counter || kindOf(code)->attempts == counter)
      return PlacedCounter{code, kindOf(code)->counter == counter};
  }
  return std::nullopt;
}

// The counter that bounds another one: attempts for made shots, made for attempts.
std::optional<Counter> otherOfPair(Counter counter) {
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot && kind.counter == counter)
      return kind.attempts;
    if (kind.isShot && kind.attempts == counter)
      return kind.counter;
  }
  return std::nullopt;
}
bool isMadeCounter(Counter counter) {
  return std::ranges::any_of(eventKinds(),
                             [&](const EventKind& kind) { return kind.isShot && kind.counter == counter; });
}

// Adds shots without place, or takes such away, until `count` of them are made or missed.
bool setShots(std::vector<ManualShot>& shots, bool isMade, int count) {
  const auto isOfThem = [isMade](const ManualShot& shot) { return shot.isMade == isMade; };
  auto missing = count - static_cast<int>(std::ranges::count_if(shots, isOfThem));
  const auto unplaced = std::ranges::count_if(
      shots, [&](const ManualShot& shot) { return isOfThem(shot) && shot.place.empty(); });
  if (missing < -unplaced)
    return false;
  for (; missing > 0; --missing)
    shots.push_back({isMade, {}});
  for (auto shot = shots.end(); missing < 0 && shot != shots.begin();) {
    --shot;
    if (isOfThem(*shot) && shot->place.empty()) {
      shot = shots.erase(shot);
      ++missing;
    }
  }
  return true;
}

// Takes the last shots with a place away that are more than `count`; how many.
int dropPlaced(std::vector<ManualShot>& shots, bool isMade, int count) {
  int kept = 0;
  return static_cast<int>(std::erase_if(shots, [&](const ManualShot& shot) {
    return shot.isMade == isMade && !shot.place.empty() && ++kept > count;
  }));
}

void addLines(std::vector<std::string>& lines, int count, EventCode code, bool isMade, Side team,
              const std::string& number) {
  for (int written = 0; written < count; ++written)
    lines.push_back(std::string(kClock) + eventText(code, isMade, team, number));
}

} // namespace

Counters ManualSlot::counts() const {
  Counters all = counters;
  for (const EventCode code : kPlaced) {
    all[kindOf(code)->counter] =
        static_cast<std::int16_t>(std::ranges::count(shots(code), true, &ManualShot::isMade));
    all[kindOf(code)->attempts] = static_cast<std::int16_t>(shots(code).size());
  }
  return all;
}

void ManualTotals::load(const Roster& visitors, const Roster& home, const EventList& events) {
  *this = {};
  const PerSide<const Roster*> rosters = {&visitors, &home};
  for (const Side team : kSides) {
    for (int entry = 1; entry <= kSlots; ++entry) {
      const RosterPlayer* const player = rosters[team]->player(entry);
      if (player == nullptr)
        break;
      slot(team, entry).number = player->jersey;
      m_jerseys[team][index(entry - 1)] = player->jersey;
    }
  }
  m_linesElsewhere = events.size() - events.ofPeriod(kPeriod).size();
  for (const GameEvent& event : events.ofPeriod(kPeriod)) {
    // Under whatever key: saving numbers all lines anew.
    if (event.unread > 0 || !count(GameEvent::parse(kPeriod, "1", event.whole()), visitors, home))
      m_kept.emplace_back(event.whole());
  }
}

// False for a line that has to be kept as it is.
bool ManualTotals::count(const GameEvent& event, const Roster& visitors, const Roster& home) {
  const std::string_view line = event.whole();
  if (!event.isUnderstood || !event.isOfPlayer() || !line.starts_with(kClock))
    return false;
  const EventKind& kind = *event.kind();
  const int entry = (event.player.team == Side::Visitor ? visitors : home).entryOf(event.player.jersey);
  if (entry == 0)
    return false;
  ManualSlot& found = slot(*event.player.team, entry);
  const auto player = static_cast<std::size_t>(event.player.jersey.data() - line.data());
  const std::string_view rest = line.substr(player + event.player.jersey.size());
  if (kind.hasPlace) {
    if (isFull(static_cast<int>(found.shots(kind.code).size())))
      return false;
    found.shots(kind.code).push_back({event.isMade, std::string(rest.substr(rest.empty() ? 0 : 1))});
    return true;
  }
  if (!rest.empty() || isFull(found.counters[kind.isShot ? kind.attempts : kind.counter]))
    return false;
  if (kind.isShot)
    change(found.counters[kind.attempts], 1);
  if (!kind.isShot || event.isMade)
    change(found.counters[kind.counter], 1);
  return true;
}

// The slot of a player for whom something is entered.
ManualSlot& ManualTotals::touched(Side team, int number) {
  ManualSlot& found = slot(team, number);
  if (found.isEmpty())
    found.number = m_jerseys[team][index(number - 1)];
  return found;
}

bool ManualTotals::press(Side team, int number, EventCode code, bool isMade, Step step) {
  const EventKind& kind = *kindOf(code);
  const int by = step == Step::Up ? 1 : -1;
  Counters& counters = slot(team, number).counters;
  std::int16_t& count = counters[kind.counter];
  std::int16_t& attempts = counters[kind.attempts]; // of an action: the same
  const bool isAllowed = step == Step::Up ? !isFull(attempts) : isMade ? count > 0 : attempts > count;
  if (kind.hasPlace || !isAllowed)
    return false;
  if (kind.isShot)
    change(attempts, by);
  if (isMade)
    change(count, by);
  touched(team, number);
  return true;
}

ManualTotals::Typed ManualTotals::setCount(Side team, int number, Counter counter, int count) {
  if (count < 0 || count > kLargestCount)
    return Typed::OutOfRange;
  const Counters counts = slot(team, number).counts();
  if (count == counts[counter])
    return Typed::Taken;
  const std::optional<Counter> other = otherOfPair(counter);
  const bool isMade = isMadeCounter(counter);
  if (other && !isMade && count < counts[*other])
    return Typed::UnderMade;
  if (const auto placed = placedCounter(counter)) {
    std::vector<ManualShot>& shots = slot(team, number).shots(placed->code);
    // Attempts stay what they were while there are enough for the missed shots that have a place.
    const auto placedMisses = std::ranges::count_if(
        shots, [](const ManualShot& shot) { return !shot.isMade && !shot.place.empty(); });
    const int made = isMade ? count : counts[*other];
    const int attempts =
        isMade ? std::max(count + static_cast<int>(placedMisses), int{counts[*other]}) : count;
    if (attempts > kLargestCount)
      return Typed::OutOfRange;
    std::vector<ManualShot> changed = shots;
    if (!setShots(changed, true, made) || !setShots(changed, false, attempts - made))
      return Typed::UnderPlaced;
    shots = std::move(changed);
  } else {
    Counters& stored = slot(team, number).counters;
    stored[counter] = static_cast<std::int16_t>(count);
    if (other && isMade)
      stored[*other] = std::max(stored[*other], stored[counter]);
  }
  touched(team, number);
  return Typed::Taken;
}

int ManualTotals::setCounts(Side team, int number, const Counters& counts) {
  ManualSlot& changed = counts.hasAny() ? touched(team, number) : slot(team, number);
  changed.counters = counts;
  int gone = 0;
  for (const EventCode code : kPlaced) {
    const EventKind& kind = *kindOf(code);
    changed.counters[kind.counter] = 0; // the lists are their counts
    changed.counters[kind.attempts] = 0;
    std::vector<ManualShot>& shots = changed.shots(code);
    gone += dropPlaced(shots, true, counts[kind.counter]);
    gone += dropPlaced(shots, false, counts[kind.attempts] - counts[kind.counter]);
    setShots(shots, true, counts[kind.counter]);
    setShots(shots, false, counts[kind.attempts] - counts[kind.counter]);
  }
  return gone;
}

void ManualTotals::addShot(Side team, int number, EventCode code, bool isMade, int x, int y) {
  std::vector<ManualShot>& shots = touched(team, number).shots(code);
  if (!isFull(static_cast<int>(shots.size())))
    shots.push_back({isMade, std::to_string(x) + "," + std::to_string(y)});
}

void ManualTotals::deleteShot(Side team, int number, EventCode code, std::size_t place) {
  std::vector<ManualShot>& shots = slot(team, number).shots(code);
  if (place < shots.size())
    shots.erase(shots.begin() + static_cast<std::ptrdiff_t>(place));
}

void ManualTotals::clear(Side team) {
  m_slots[team].fill({});
}

Counters ManualTotals::teamCounts(Side team) const {
  Counters sum;
  for (const ManualSlot& slot : m_slots[team]) {
    const Counters counts = slot.counts();
    for (std::size_t counter = 0; counter < kCounterCount; ++counter)
      change(sum.counts[counter], counts.counts[counter]);
  }
  return sum;
}

std::vector<std::string> ManualTotals::lines() const {
  std::vector<std::string> lines;
  for (const Side team : kSides) {
    for (const ManualSlot& slot : m_slots[team]) {
      if (slot.isEmpty())
        continue;
      for (const EventCode code : kCounted) {
        const EventKind& kind = *kindOf(code);
        const int count = slot.counters[kind.counter];
        addLines(lines, count, code, true, team, slot.number);
        if (kind.isShot)
          addLines(lines, slot.counters[kind.attempts] - count, code, false, team, slot.number);
      }
      for (const EventCode code : kPlaced) {
        for (const ManualShot& shot : slot.shots(code)) {
          addLines(lines, 1, code, shot.isMade, team, slot.number);
          if (!shot.place.empty())
            lines.back() += "," + shot.place;
        }
      }
    }
  }
  lines.insert(lines.end(), m_kept.begin(), m_kept.end());
  return lines;
}

} // namespace hooptab
