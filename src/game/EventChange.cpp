#include "game/EventChange.h"

#include <algorithm>

namespace hooptab {

namespace {

auto placeOf(PeriodLines& lines, std::string_view key) {
  return std::ranges::find(lines, key, &PeriodLines::value_type::first);
}

} // namespace

const std::string* findLine(const EventLines& lines, int period, std::string_view key) {
  const auto found = lines.find(period);
  if (found == lines.end())
    return nullptr;
  const auto line = std::ranges::find(found->second, key, &PeriodLines::value_type::first);
  return line == found->second.end() ? nullptr : &line->second;
}

bool applyChange(const EventChange& change, EventLines& lines) {
  PeriodLines& period = lines[change.period];
  const auto event = placeOf(period, change.key);
  const bool isThere = event != period.end();
  if (isThere == (change.kind == EventChange::Kind::Add))
    return false;
  if (!change.before.empty() && placeOf(period, change.before) == period.end())
    return false;
  if (change.kind == EventChange::Kind::Replace) {
    event->second = change.line;
    return true;
  }
  std::pair<std::string, std::string> placed(change.key, change.line);
  if (isThere) {
    if (change.before == change.key)
      return true;
    placed = std::move(*event);
    period.erase(event);
  }
  period.insert(change.before.empty() ? period.end() : placeOf(period, change.before), std::move(placed));
  return true;
}

} // namespace hooptab
