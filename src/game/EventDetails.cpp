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

// Of a code, clock and code included: without these there is no event, and all that the grammar has.
struct GrammarFields {
  std::size_t least = 0;
  std::size_t most = 0;
};
GrammarFields grammarOf(std::string_view code) {
  constexpr std::size_t kClockAndCode = 2;
  if (code == "DEPART")
    return {kClockAndCode, kClockAndCode};
  if (code == "ARRET")
    return {kClockAndCode, kClockAndCode + 2};
  if (code == "XJB")
    return {kClockAndCode + 2, kClockAndCode + 2};
  const bool hasPlace = std::ranges::any_of(
      kEventKinds, [&](const EventKind& kind) { return kind.hasPlace && code.starts_with(kind.text); });
  return {kClockAndCode + 1, kClockAndCode + (hasPlace ? 3 : 1)};
}

bool isDetail(std::string_view field) {
  return field.find('=') != std::string_view::npos;
}
std::string_view keyOf(std::string_view field) {
  return field.substr(0, field.find('='));
}

// A line apart: what the grammar has of it, and all that stands behind.
struct SplitLine {
  std::vector<std::string_view> grammar;
  std::vector<std::string_view> behind;

  explicit SplitLine(std::string_view line) : grammar(fieldsOf(line)) {
    if (grammar.size() < 2)
      return;
    const auto [least, most] = grammarOf(grammar[1]);
    std::size_t count = std::min(least, grammar.size());
    while (count < std::min(most, grammar.size()) && !isDetail(grammar[count]))
      ++count;
    behind.assign(grammar.begin() + static_cast<std::ptrdiff_t>(count), grammar.end());
    grammar.resize(count);
  }
  [[nodiscard]] std::string text() && {
    const auto [least, most] = grammar.size() < 2 ? GrammarFields() : grammarOf(grammar[1]);
    if (!behind.empty())
      grammar.resize(std::max(grammar.size(), most));
    while (behind.empty() && grammar.size() > std::max<std::size_t>(least, 3) && grammar.back().empty())
      grammar.pop_back(); // that stood before the detail alone
    grammar.insert(grammar.end(), behind.begin(), behind.end());
    std::string text(grammar.front());
    for (const std::string_view field : std::span(grammar).subspan(1))
      text.append(",").append(field);
    return text;
  }
};

bool isFoulOfPlayer(EventCode code) {
  return code == EventCode::SPF || code == EventCode::STF;
}
bool isFieldGoal(EventCode code) {
  return code >= EventCode::GFG && code != EventCode::GFT;
}

} // namespace

std::string withDetail(std::string_view line, std::string_view key, std::string_view value) {
  SplitLine split(line);
  std::erase_if(split.behind, [&](std::string_view field) { return isDetail(field) && keyOf(field) == key; });
  const std::string added = std::string(key) + '=' + std::string(value);
  if (!value.empty())
    split.behind.push_back(added);
  return std::move(split).text();
}

std::vector<PlayerReference> playersNamedBy(const GameEvent& event) {
  std::vector<PlayerReference> named;
  if (event.isOfPlayer())
    named.push_back(event.player);
  if (event.code == EventCode::XJB)
    named.insert(named.end(), {event.jumper(Side::Visitor), event.jumper(Side::Home)});
  for (const std::string_view key : {detail_key::kDrawnBy, detail_key::kShooter}) {
    if (const auto other = PlayerReference::read(event.detail(key).value_or("")))
      named.push_back(*other);
  }
  return named;
}

std::string withDetailsOf(const GameEvent& old, std::string text, EventCode kind, std::optional<Side> team) {
  const bool isOfOne = kind == old.code || (isFieldGoal(kind) && isFieldGoal(old.code)) ||
                       (isFoulOfPlayer(kind) && isFoulOfPlayer(old.code));
  if (!isOfOne || old.detailsAt == 0)
    return text;
  std::vector<std::string_view> fields = SplitLine(old.line).behind;
  if (old.unread > 0 && !fields.empty()) // of which nobody knows the end
    fields.pop_back();
  SplitLine split(text);
  for (const std::string_view field : fields) {
    const std::string_view key = isDetail(field) ? keyOf(field) : std::string_view();
    const bool isOfOpponent = key == detail_key::kDrawnBy || key == detail_key::kShooter;
    const bool isOtherFoul = isFoulOfPlayer(kind) && kind != old.code;
    const bool isOfNobody = kind == EventCode::XTO && (!team || !old.player.team);
    const bool isOfKind = key == detail_key::kKind && (isOtherFoul || isOfNobody);
    const bool isSettled = key == detail_key::kDoubtful || key == detail_key::kX || key == detail_key::kY;
    if (!field.empty() && !isSettled && !isOfKind && (!isOfOpponent || team == old.player.team))
      split.behind.push_back(field);
  }
  return std::move(split).text();
}

} // namespace hooptab
