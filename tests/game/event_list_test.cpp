#include "game/EventList.h"
#include "support/TextGame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace hooptab {
namespace {

using Kind = EventChange::Kind;

// The same without sharing, order or index: what a list has to agree with.
bool applySlowly(const EventChange& change, EventLines& lines) {
  PeriodLines& period = lines[change.period];
  const auto placeOf = [&](const std::string& key) {
    return std::ranges::find(period, key, &PeriodLines::value_type::first);
  };
  const auto event = placeOf(change.key);
  if ((event != period.end()) == (change.kind == Kind::Add) ||
      (!change.before.empty() && placeOf(change.before) == period.end()))
    return false;
  if (change.kind == Kind::Replace) {
    event->second = change.line;
    return true;
  }
  PeriodLines::value_type line(change.key, change.line);
  if (change.kind == Kind::Move) {
    if (change.before == change.key)
      return true;
    line = *event;
    period.erase(event);
  }
  period.insert(change.before.empty() ? period.end() : placeOf(change.before), line);
  return true;
}

void expectSame(const EventList& events, EventLines lines) {
  std::erase_if(lines, [](const auto& period) { return period.second.empty(); });
  ASSERT_EQ(linesOf(events), lines);
  std::size_t index = 0;
  for (const auto& [period, ofPeriod] : lines) {
    EXPECT_EQ(events.ofPeriod(period).size(), ofPeriod.size());
    for (const auto& [key, line] : ofPeriod) {
      EXPECT_EQ(events.indexOf(period, key), index);
      EXPECT_EQ(events.find(period, key), &events[index]);
      EXPECT_EQ((events.begin() + static_cast<std::ptrdiff_t>(index))->whole(), line);
      ++index;
    }
    EXPECT_EQ(events.endOfPeriod(period), index);
  }
  EXPECT_EQ(index, events.size());
  std::vector<std::string> backwards;
  for (auto event = events.rbegin(); event != events.rend(); ++event)
    backwards.emplace_back(event->key);
  EXPECT_EQ(backwards.size(), events.size());
  EXPECT_TRUE(std::ranges::equal(backwards.rbegin(), backwards.rend(), events.begin(), events.end(), {}, {},
                                 &GameEvent::key));
}

TEST(EventList, HoldsWhatIsDoneToItAndNothingThatIsDoneToItsCopies) {
  std::mt19937 random(7);
  const auto roll = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
  const auto oneOf = [&](const EventLines& lines, int period) {
    const auto found = lines.find(period);
    return found == lines.end() || found->second.empty() || roll(9) == 0
               ? std::string("99")
               : found->second[static_cast<std::size_t>(roll(static_cast<int>(found->second.size())))].first;
  };
  EventList events;
  EventLines lines;
  EventList earlier;
  EventLines earlierLines;
  int taken = 0;
  for (int step = 0; step < 400; ++step) {
    EventChange change{static_cast<Kind>(roll(3)), 1 + roll(4), {}, {}, {}};
    change.key =
        change.kind == Kind::Add && roll(9) > 0 ? std::to_string(100 + step) : oneOf(lines, change.period);
    change.line = "0" + std::to_string(roll(9)) + ":00,SA,0-" + std::to_string(step);
    change.before = roll(2) == 0 ? std::string() : oneOf(lines, change.period);
    if (change.kind == Kind::Replace)
      change.before.clear();
    const bool isTaken = applySlowly(change, lines);
    ASSERT_EQ(events.apply(change), isTaken) << step;
    taken += isTaken ? 1 : 0;
    expectSame(events, lines);
    expectSame(earlier, earlierLines);

    const auto [head, tail] = earlier.inCommonWith(events);
    const auto whole = [](const EventList& list, std::size_t index) {
      return std::pair(placeOf(list[index]), list[index].whole());
    };
    const std::size_t most = std::min(earlier.size(), events.size());
    ASSERT_LE(head + tail, most);
    for (std::size_t index = 0; index < head; ++index)
      EXPECT_EQ(whole(earlier, index), whole(events, index));
    for (std::size_t index = 1; index <= tail; ++index)
      EXPECT_EQ(whole(earlier, earlier.size() - index), whole(events, events.size() - index));
    if (head + tail < most) {
      EXPECT_NE(whole(earlier, head), whole(events, head));
      EXPECT_NE(whole(earlier, earlier.size() - 1 - tail), whole(events, events.size() - 1 - tail));
    }
    if (roll(4) == 0) {
      earlier = events;
      earlierLines = lines;
    }
  }
  EXPECT_GT(taken, 200);
}

// What stands behind the part of a line that readers get is no event's text, and must not get lost.
TEST(EventList, KeepsWhatNoReaderTakes) {
  EventList events;
  const std::string behind(40, 'y');
  events.appendOwned(1, "1", "09:00,SA,0-4," + std::string(241, 'x') + behind);
  EXPECT_EQ(events[0].line.size(), 254U);
  EXPECT_EQ(events[0].whole().size(), 294U);
  std::string accents = "09:00,SA,0-4,";
  for (int i = 0; i < 241; ++i)
    accents += "\u00e9";
  events.appendOwned(1, "2", accents + behind);
  EXPECT_EQ(events[1].line, accents) << "a letter is one byte of the file";
  EXPECT_EQ(events[1].whole(), accents + behind);
  const std::string stored = "09:00,SA,0-4," + std::string(250, 'x');
  const EventList read = gameOfText("[DETAILS]\nVERSION=2.0\n[PERIODE1]\n1=" + stored + "\xE9\n").events;
  EXPECT_EQ(read[0].whole(), stored + "\u00e9") << "also where only the rest has such letters";
}

// A period that was begun and has no event hides none of the others.
TEST(EventList, ReadsPeriodsWithoutEvents) {
  const std::string one = "[PERIODE2]\n1=10:00,SA,0-4\n2=09:00,SA,0-5\n";
  const std::string other = "[PERIODE4]\n3=08:00,SA,0-4\n";
  for (const std::string& periods : {"[PERIODE1]\n" + one + other, one + "[PERIODE3]\n; nothing\n" + other,
                                     one + other + "[PERIODE5]\n"}) {
    EventList events = gameOfText(textOfGame(periods)).events;
    expectSame(events, {{2, {{"1", "10:00,SA,0-4"}, {"2", "09:00,SA,0-5"}}}, {4, {{"3", "08:00,SA,0-4"}}}});
    EXPECT_TRUE(events.apply({EventChange::Kind::Add, 3, "4", "07:00,SA,0-4", {}}));
    EXPECT_EQ(events[2].key, "4") << periods;
  }
}

} // namespace
} // namespace hooptab
