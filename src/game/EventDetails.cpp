#include "game/EventDetails.h"

#include <algorithm>
#include <span>
#include <vector>

namespace hooptab {

namespace {

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  for (;;) {
    const std::size_t comma = line.find(',');
    fields.push_back(line.substr(0, comma));
    if (comma == std::string_view::npos)
      return fields;
    line.remove_prefix(comma + 1);
  }
}

// How many fields the grammar has for a code, clock and code included.
std::size_t grammarFields(std::string_view code) {
  constexpr std::size_t kClockAndCode = 2;
  if (code == "DEPART")
    return kClockAndCode;
  if (code == "ARRET" || code == "XJB")
    return kClockAndCode + 2;
  const bool hasPlace = std::ranges::any_of(
      kEventKinds, [&](const EventKind& kind) { return kind.hasPlace && code.starts_with(kind.text); });
  return kClockAndCode + (hasPlace ? 3 : 1);
}

bool isDetail(std::string_view field) {
  return field.find('=') != std::string_view::npos;
}

bool isFoul(EventCode code) {
  return code == EventCode::SPF || code == EventCode::STF;
}
bool isFieldGoal(EventCode code) {
  return code >= EventCode::GFG && code != EventCode::GFT;
}

} // namespace

bool isDetailValue(std::string_view text) {
  return !text.empty() && std::ranges::all_of(text, [](char letter) {
    return letter > ' ' && letter <= '~' && letter != ',' && letter != '=';
  });
}

std::string withDetail(std::string_view line, std::string_view key, std::string_view value) {
  std::vector<std::string_view> fields = fieldsOf(line);
  if (fields.size() < 2)
    return std::string(line);
  const std::size_t most = std::min(grammarFields(fields[1]), fields.size());
  auto details = fields.begin() + 2;
  while (details != fields.begin() + static_cast<std::ptrdiff_t>(most) && !isDetail(*details))
    ++details;
  std::vector<std::string_view> kept(details, fields.end());
  fields.erase(details, fields.end());
  std::erase_if(kept, [&](std::string_view field) {
    return field.size() > key.size() && field.starts_with(key) && field[key.size()] == '=';
  });
  const std::string added = std::string(key) + '=' + std::string(value);
  if (!value.empty())
    kept.push_back(added);
  if (kept.empty()) {
    while (fields.size() > 3 && fields.back().empty()) // that stood before the detail alone
      fields.pop_back();
  } else {
    fields.resize(std::max(fields.size(), grammarFields(fields[1])));
  }
  fields.insert(fields.end(), kept.begin(), kept.end());
  std::string text(fields.front());
  for (const std::string_view field : std::span(fields).subspan(1))
    text.append(",").append(field);
  return text;
}

std::vector<PlayerReference> playersNamedBy(const GameEvent& event) {
  std::vector<PlayerReference> named;
  if (event.isOfPlayer())
    named.push_back(event.player);
  if (event.code == EventCode::XJB)
    named.insert(named.end(), {event.jumper(0), event.jumper(1)});
  for (const std::string_view key : {detail_key::kDrawnBy, detail_key::kShooter}) {
    if (const auto other = PlayerReference::read(event.detail(key).value_or("")))
      named.push_back(*other);
  }
  return named;
}

std::string withDetailsOf(const GameEvent& old, std::string text, EventCode kind, int team) {
  const bool isOfOne =
      kind == old.code || (isFieldGoal(kind) && isFieldGoal(old.code)) || (isFoul(kind) && isFoul(old.code));
  if (!isOfOne || old.detailsAt == 0)
    return text;
  for (const std::string_view field : fieldsOf(old.line.substr(old.detailsAt))) {
    if (!isDetail(field))
      continue;
    const std::string_view key = field.substr(0, field.find('='));
    const bool namesOpponent = key == detail_key::kDrawnBy || key == detail_key::kShooter;
    const bool isSettled = key == detail_key::kDoubtful || key == detail_key::kX || key == detail_key::kY;
    if (!isSettled && (!namesOpponent || team == old.player.team))
      text = withDetail(text, key, field.substr(key.size() + 1));
  }
  return text;
}

} // namespace hooptab
