#include "game/GameMerge.h"

#include "game/EventDetails.h"
#include "game/GameFile.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <set>
#include <span>
#include <unordered_map>
#include <unordered_set>

namespace hooptab {

namespace {

using Line = PeriodLines::value_type;

class Merger {
 public:
  Merger(const EventList& ours, const ProfileText& left, const ProfileText& theirs)
      : m_ours(ours), m_leftText(left), m_left(storedEventLines(left)), m_theirs(theirs) {
    m_result.events = ours;
    for (const GameEvent& event : ours)
      m_numbers.insert(Module1::wholeNumber(event.key));
  }

  GameMerge merge() {
    const EventLines stored = storedEventLines(m_theirs);
    std::set<int> periods;
    for (const GameEvent& event : m_ours)
      periods.insert(event.period);
    for (const auto& [period, lines] : stored)
      periods.insert(period);
    for (const int period : periods)
      mergePeriod(period, m_ours.ofPeriod(period), linesOf(stored, period));
    return std::move(m_result);
  }

 private:
  static const PeriodLines& linesOf(const EventLines& lines, int period) {
    static const PeriodLines kNone;
    const auto found = lines.find(period);
    return found == lines.end() ? kNone : found->second;
  }

  void mergePeriod(int period, std::span<const GameEvent> ours, const PeriodLines& stored) {
    std::unordered_map<std::string_view, std::string_view> own;
    for (const GameEvent& event : ours)
      own.emplace(event.key, event.whole());
    const PeriodLines& leftLines = linesOf(m_left, period);
    std::unordered_map<std::string_view, std::string_view> left(leftLines.begin(), leftLines.end());
    lookForHidden(period, own);
    lookForShadowed(period);

    // Theirs that are new stand before the first of ours that follows them in their file, or behind all.
    std::unordered_map<std::string, PeriodLines> before;
    PeriodLines waiting;
    const int known = m_result.added;
    for (const auto& [storedKey, storedLine] : stored) {
      Line line(codepage::toUtf8(storedKey), codepage::toUtf8(storedLine));
      const auto asItWas = left.find(storedKey);
      const bool isAsLeft = asItWas != left.end() && asItWas->second == storedLine;
      if (isAsLeft)
        left.erase(asItWas);
      if (const auto same = own.find(line.first); same != own.end()) {
        if (same->second != line.second && !isAsLeft)
          m_result.gaveWay.push_back({period, line.first});
        before[line.first] = std::exchange(waiting, {});
      } else if (isNew(period, line)) {
        waiting.push_back(std::move(line));
        ++m_result.added;
      } else {
        m_result.gaveWay.push_back({period, line.first});
      }
    }
    m_result.restored += static_cast<int>(left.size());
    if (m_result.added == known)
      return;

    PeriodLines both;
    for (const GameEvent& event : ours) {
      if (const auto inserted = before.find(std::string(event.key)); inserted != before.end())
        std::ranges::move(inserted->second, std::back_inserter(both));
      both.emplace_back(event.key, event.whole());
    }
    std::ranges::move(waiting, std::back_inserter(both));
    m_result.events.setPeriod(period, both);
  }

  bool isNew(int period, const Line& line) {
    const int number = Module1::wholeNumber(line.first);
    return number > 0 && GameEvent::parse(period, line.first, readablePart(line.second)).isUnderstood &&
           m_numbers.insert(number).second;
  }

  void lookForHidden(int period, const std::unordered_map<std::string_view, std::string_view>& own) {
    for (const ProfileText::Line& line : m_theirs.section(periodSection(period))) {
      if (line.kind == ProfileText::Line::Kind::NameOnly && own.contains(codepage::toUtf8(line.name)))
        m_result.isHidden = true;
    }
  }

  // A second line of one number is never read, and would go when its section is written anew.
  void lookForShadowed(int period) {
    const std::string section = periodSection(period);
    std::set<std::pair<std::string_view, std::string_view>> known;
    for (const ProfileText::Line& line : m_leftText.section(section))
      known.emplace(line.name, line.value);
    std::unordered_map<std::string_view, std::string_view> first;
    for (const ProfileText::Line& line : m_theirs.section(section)) {
      if (line.kind != ProfileText::Line::Kind::KeyValue)
        continue;
      const auto [read, isFirst] = first.emplace(line.name, line.value);
      if (!isFirst && read->second != line.value && !known.contains({line.name, line.value}))
        m_result.gaveWay.push_back({period, codepage::toUtf8(line.name)});
    }
  }

  const EventList& m_ours;
  const ProfileText& m_leftText;
  const EventLines m_left;
  const ProfileText& m_theirs;
  std::unordered_set<int> m_numbers;
  GameMerge m_result;
};

} // namespace

GameMerge mergeGame(const EventList& ours, const ProfileText& left, const ProfileText& theirs) {
  return Merger(ours, left, theirs).merge();
}

bool isNamed(const EventList& events, Side team, std::string_view jersey) {
  return std::ranges::any_of(events, [&](const GameEvent& event) {
    if (!event.isUnderstood)
      return false;
    if (event.code != EventCode::ARRET)
      return std::ranges::any_of(playersNamedBy(event), [&](const PlayerReference& named) {
        return named.team == team && named.jersey == jersey;
      });
    for (const std::string_view other : Module1::JerseysOfList(event.onCourt(team))) {
      if (other == jersey || Module1::leadingNumber(other) == Module1::wholeNumber(jersey))
        return true;
    }
    return false;
  });
}

} // namespace hooptab
