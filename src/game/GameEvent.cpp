#include "game/GameEvent.h"

#include "game/EventDetails.h"
#include "storage/Module1.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace hooptab {

namespace {

constexpr std::size_t kClockLength = 5;

struct Code {
  EventCode code = EventCode::Unknown;
  const EventKind* kind = nullptr;
  bool isMade = false;
};

// A code of up to four letters as one number, so that comparing costs as much as comparing numbers.
constexpr std::uint32_t packed(std::string_view text) {
  std::uint32_t number = 0;
  for (const char letter : text)
    number = (number << 8) | static_cast<unsigned char>(letter);
  return number;
}

constexpr auto kAllKinds = [] {
  std::array<const EventKind*, kEventKinds.size() + kTeamKinds.size()> all = {};
  std::size_t count = 0;
  for (const EventKind& kind : kEventKinds)
    all[count++] = &kind;
  for (const EventKind& kind : kTeamKinds)
    all[count++] = &kind;
  return all;
}();

// A table in which each code has a place of its own, found by one multiplication: reading a season looks up
// millions of codes.
struct CodeTable {
  static constexpr unsigned kBits = 6;
  std::uint32_t multiplier = 0;
  std::array<std::int8_t, 1U << kBits> places = {};

  [[nodiscard]] constexpr std::size_t slot(std::uint32_t code) const {
    return (code * multiplier) >> (32 - kBits);
  }
  constexpr bool place() {
    places.fill(-1);
    for (std::size_t i = 0; i < kAllKinds.size(); ++i) {
      std::int8_t& place = places[slot(packed(kAllKinds[i]->text))];
      if (place >= 0)
        return false;
      place = static_cast<std::int8_t>(i);
    }
    return true;
  }
};
constexpr CodeTable kCodes = [] {
  CodeTable table;
  for (table.multiplier = 0x9E3779B1U; !table.place(); table.multiplier += 2) {
  }
  return table;
}();

// Letter for letter.
Code codeOf(std::string_view text) {
  if (text.size() > 4) {
    const bool isStop = text == "ARRET";
    return isStop || text == "DEPART" ? Code{isStop ? EventCode::ARRET : EventCode::DEPART} : Code();
  }
  const bool isMiss = text.size() == 4 && text[0] == 'G' && text[3] == 'A';
  const std::uint32_t wanted = packed(isMiss ? text.substr(0, 3) : text);
  const int place = kCodes.places[kCodes.slot(wanted)];
  if (place < 0)
    return {};
  const EventKind& kind = *kAllKinds[static_cast<std::size_t>(place)];
  if (packed(kind.text) != wanted)
    return {};
  return {kind.code, &kind, kind.isShot && !isMiss};
}

// The text before the next comma; moves on behind it.
inline std::string_view nextField(std::string_view& rest) {
  std::size_t length = 0;
  while (length < rest.size() && rest[length] != ',')
    ++length;
  const std::string_view field = rest.substr(0, length);
  rest.remove_prefix(length < rest.size() ? length + 1 : length);
  return field;
}

// A place as our writers make it is a short whole number; others may carry a fraction behind a point.
bool parseCoordinate(std::string_view text, float& value) {
  if (const int whole = Module1::wholeNumber(text); whole >= 0) {
    value = static_cast<float>(whole);
    return true;
  }
  float number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number, std::chars_format::fixed);
  if (error != std::errc() || stop != end || text.empty() || !std::isfinite(number))
    return false;
  value = number;
  return true;
}

bool isPlayer(std::string_view text) {
  return text.size() >= 3 && (text[0] == '0' || text[0] == '1') && text[1] == '-';
}

// "0", "1", or nothing for nobody's.
bool parseSide(std::string_view text, bool mayBeNobody, PlayerReference& player) {
  if (text != "0" && text != "1")
    return text.empty() && mayBeNobody;
  player.team = sideOf(text[0] - '0');
  return true;
}

} // namespace

// Side, "-", jersey. A jersey is never empty and holds no further rule: it is looked up in the roster.
std::optional<PlayerReference> PlayerReference::read(std::string_view text) {
  return isPlayer(text) ? std::optional(PlayerReference{sideOf(text[0] - '0'), text.substr(2)})
                        : std::nullopt;
}

GameEvent GameEvent::parse(int period, std::string_view key, std::string_view line) {
  GameEvent event;
  event.parseLine(period, key, std::max(Module1::wholeNumber(key), 0), line);
  return event;
}

void GameEvent::parseLine(int eventPeriod, std::string_view eventKey, int keyNumber,
                          std::string_view eventLine) {
  key = eventKey;
  line = eventLine;
  period = eventPeriod;
  number = keyNumber;

  std::string_view rest = eventLine; // not the member: what was just stored is slow to read back
  if (rest.starts_with('E')) {
    isDeleted = true;
    rest.remove_prefix(1);
  }
  // A code follows the clock.
  if (keyNumber == 0 || rest.size() <= kClockLength || rest[kClockLength] != ',')
    return;
  const auto clock = Module1::clockSeconds(rest.substr(0, kClockLength));
  if (!clock)
    return;
  rest.remove_prefix(kClockLength + 1);
  const Code found = codeOf(nextField(rest));
  if (found.code == EventCode::Unknown)
    return;
  code = found.code;
  eventKind = found.kind;
  isMade = found.isMade;
  clockSeconds = *clock;

  if (found.code == EventCode::ARRET) {
    for (std::size_t lists = 0; lists < kSides.size(); ++lists) {
      const std::string_view list = nextField(rest);
      if (!list.empty() && !Module1::isOnCourtList(list))
        return;
    }
  } else if (found.code == EventCode::XJB) {
    const auto first = PlayerReference::read(nextField(rest));
    const auto second = PlayerReference::read(nextField(rest));
    if (!first || !second || first->team != Side::Visitor || second->team != Side::Home)
      return;
  } else if (isOfTeam()) {
    if (!parseSide(nextField(rest), found.code == EventCode::XTO, player))
      return;
  } else if (found.kind != nullptr) {
    const std::string_view who = nextField(rest);
    if (!isPlayer(who))
      return;
    player = {sideOf(who[0] - '0'), who.substr(2)};
    if (found.kind->hasPlace) {
      std::string_view behind = rest;
      const std::string_view xText = nextField(behind);
      hasPlace = parseCoordinate(xText, x) && parseCoordinate(nextField(behind), y);
      if (hasPlace)
        rest = behind;
    }
  }
  isUnderstood = true;
  if (rest.empty()) // nearly all lines
    return;
  detailsAt = static_cast<std::uint16_t>(eventLine.size() - rest.size());
  isDoubtful = detail(detail_key::kDoubtful) == "1";
  if (isShot() && !found.kind->hasPlace && found.code != EventCode::GFT)
    hasPlace = parseCoordinate(detail(detail_key::kX).value_or(""), x) &&
               parseCoordinate(detail(detail_key::kY).value_or(""), y);
}

std::optional<std::string_view> GameEvent::detail(std::string_view detailKey) const {
  if (detailsAt == 0)
    return std::nullopt;
  for (std::string_view rest = line.substr(detailsAt); !rest.empty();) {
    const std::string_view field = nextField(rest);
    if (field.size() > detailKey.size() && field.starts_with(detailKey) && field[detailKey.size()] == '=')
      return field.substr(detailKey.size() + 1);
  }
  return std::nullopt;
}

PlayerReference GameEvent::jumper(Side team) const {
  const std::size_t begin = line.find(",XJB,");
  if (code != EventCode::XJB || begin == std::string_view::npos)
    return {};
  std::string_view rest = line.substr(begin + std::string_view(",XJB,").size());
  std::string_view found = nextField(rest);
  if (team == Side::Home)
    found = nextField(rest);
  return PlayerReference::read(found).value_or(PlayerReference());
}

std::string_view GameEvent::onCourt(Side team) const {
  constexpr std::size_t kBeforeLists = kClockLength + std::string_view(",ARRET,").size();
  std::string_view rest = line.substr(std::min(kBeforeLists + (isDeleted ? 1 : 0), line.size()));
  const std::size_t end = std::min(rest.find(','), rest.size());
  if (team == Side::Visitor)
    return rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return rest.substr(0, rest.find(','));
}

std::string eventText(EventCode code, bool made, Side team, std::string_view jersey,
                      std::optional<std::pair<double, double>> place) {
  const EventKind* kind = kindOf(code);
  std::string text = ",";
  text += kind->text;
  if (kind->isShot && !made)
    text += 'A';
  text += ',';
  text += static_cast<char>('0' + numberOf(team));
  text += '-';
  text += jersey;
  if (!place)
    return text;
  const std::string x = std::to_string(static_cast<int>(place->first));
  const std::string y = std::to_string(static_cast<int>(place->second));
  return text + (kind->hasPlace ? "," + x + "," + y : ",X=" + x + ",Y=" + y);
}

std::string teamEventText(EventCode code, std::optional<Side> team) {
  const std::string text = "," + std::string(kindOf(code)->text) + ",";
  return team ? text + std::to_string(numberOf(*team)) : text + ",K=MEDIA";
}

std::string startText() {
  return ",DEPART";
}

std::string stopText(std::string_view list0, std::string_view list1) {
  std::string text = ",ARRET,";
  text += list0;
  text += ',';
  text += list1;
  return text;
}

} // namespace hooptab
