#include "bbgame/BbGamePlays.h"

#include "bbgame/BbGameWords.h"
#include "bbgame/XmlDocument.h"
#include "foreign/ClockForms.h"
#include "foreign/NameForms.h"
#include "game/GameEvent.h"
#include "storage/Module1.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace hooptab {

namespace {

constexpr int kNobody = -1;
constexpr int kSeveral = -2;
// Beyond any team; a file that names more is a broken one.
constexpr std::size_t kMostListed = 100;

// As it is compared: without blanks, in capital letters as far as there are others.
std::string plain(std::string_view text) {
  std::string key;
  for (const char letter : text) {
    if (letter != ' ')
      key += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  }
  return key;
}
std::string numberKey(std::string_view number) {
  return number.empty() ? std::string() : "#" + plain(number);
}
std::string nameKey(std::string_view callName) {
  return callName.empty() ? std::string() : "," + plain(callName);
}

std::optional<Side> teamOf(const pugi::xml_node& element) {
  const std::string letter = plain(textOf(element, "vh"));
  for (const Side team : kSides) {
    if (letter == bbgame::kSideLetters[team])
      return team;
  }
  return std::nullopt;
}

// In percent of the whole court, of which a team attacks the basket on one side.
std::optional<std::pair<double, double>> placeOn(const pugi::xml_node& play) {
  constexpr double kPercent = 100;
  const std::optional<double> x = decimalOf(play, "x");
  const std::optional<double> y = decimalOf(play, "y");
  if (!x || !y)
    return std::nullopt;
  const std::string side = plain(textOf(play, "side"));
  const bool isRight = side == "RIGHT" || (side != "LEFT" && *x > kPercent / 2);
  const double along = isRight ? kPercent - *x : *x;
  const double across = isRight ? kPercent - *y : *y;
  return std::pair(std::clamp(along * bbgame::kCourtLength / kPercent, 0.0, court::kLength),
                   std::clamp(across * court::kWidth / kPercent, 0.0, court::kWidth));
}

bool isFieldGoal(const ForeignEvent& event) {
  return event.kind == ForeignKind::Event && event.code >= EventCode::GFG && event.code != EventCode::GFT;
}

// "1OF2".
std::pair<int, int> numberOfThrow(const std::string& sequence) {
  const std::size_t of = sequence.find("OF");
  if (of == std::string::npos)
    return {0, 0};
  const int number = Module1::wholeNumber(std::string_view(sequence).substr(0, of));
  const int all = Module1::wholeNumber(std::string_view(sequence).substr(of + 2));
  constexpr int kMostThrows = 9;
  return number >= 1 && number <= all && all <= kMostThrows ? std::pair(number, all) : std::pair(0, 0);
}

} // namespace

struct BbGamePlays::Row {
  pugi::xml_node element;
  std::string action;
  std::string type;
  std::string description;
  Doer doer;
};

bool BbGamePlays::enlist(Side team, ForeignPlayer player, std::string_view callName) {
  std::vector<ForeignPlayer>& players = m_game.teams[team].players;
  if (players.size() >= kMostListed)
    return false;
  const int place = static_cast<int>(players.size());
  const std::string number = numberKey(player.jersey);
  const std::string name = nameKey(callName);
  for (const std::string& key : {number, name, number + name}) {
    const auto [known, isNew] = m_places[team].emplace(key, place);
    if (!isNew && known->second != place)
      known->second = kSeveral;
  }
  players.push_back(std::move(player));
  return true;
}

int BbGamePlays::placeOf(Side team, const std::string& key) const {
  const auto& places = m_places[team];
  const auto found = key.empty() ? places.end() : places.find(key);
  return found == places.end() ? kNobody : found->second;
}

Doer BbGamePlays::find(std::optional<Side> team, const std::string& number, std::string_view callName) {
  const bool isTeam =
      number == bbgame::kTeamNumber ||
      (number.empty() && (callName.empty() || callName == bbgame::kTeamName || callName == bbgame::kCoach));
  if (!team || isTeam)
    return {team, -1};
  const std::string ofNumber = numberKey(number);
  const std::string ofName = nameKey(callName);
  for (const std::string& key : {ofNumber + ofName, ofName, ofNumber}) {
    if (const int place = placeOf(*team, key); place >= 0)
      return {team, place};
  }
  const int place = static_cast<int>(m_game.teams[*team].players.size());
  const std::string name = givenFirst(callName);
  ForeignPlayer added;
  added.jersey = number;
  added.name = name;
  if (!enlist(*team, std::move(added), callName))
    return {team, -1};
  m_game.notes.push_back({Text::BbGamePlayerAdded, number + ' ' + name, m_game.teams[*team].name});
  return {team, place};
}

void BbGamePlays::read(const pugi::xml_node& bbgame) {
  const pugi::xml_node status = bbgame.child("status");
  m_statusPeriod = numberOf(status, "period", 0);
  m_statusClock = clockCentiseconds(textOf(status, "clock"));
  std::vector<std::pair<int, pugi::xml_node>> periods;
  for (const pugi::xml_node& element : bbgame.child("plays").children("period")) {
    const int number = numberOf(element, "number", static_cast<int>(periods.size()) + 1);
    if (number < 1 || number > kLastPeriod)
      m_game.unknown["period " + std::to_string(number)] += 1;
    else
      periods.emplace_back(number, element);
  }
  std::ranges::stable_sort(periods, {}, &std::pair<int, pugi::xml_node>::first);
  // Some files have the periods to come as well.
  while (!m_game.isFinished && !periods.empty() && periods.back().first > m_statusPeriod &&
         !periods.back().second.child("play"))
    periods.pop_back();
  for (const auto& [number, element] : periods)
    readPeriod(element, number, element == periods.back().second);
  passOverDrawn();
  settleOneAndOnes();
}

void BbGamePlays::readPeriod(const pugi::xml_node& element, int number, bool isLast) {
  constexpr int kMinute = 6000;
  const int usual = number > m_game.periods ? m_game.overtimeMinutes : m_game.minutes;
  m_period = number;
  m_centiseconds = clockCentiseconds(textOf(element, "time")).value_or(usual * kMinute);
  m_missedShot = -1;
  passOverDrawn();
  ForeignEvent start = eventOf(EventCode::Unknown, {});
  start.kind = ForeignKind::PeriodStart;
  m_game.events.push_back(start);
  bool isOver = !isLast || m_game.isFinished;
  for (const pugi::xml_node& child : element.children()) {
    const std::string_view name = child.name();
    if (name == "play")
      readPlay(child);
    else if (name == "clock" && clockCentiseconds(textOf(child, "time")) == 0)
      isOver = true;
  }
  if (!isOver)
    return;
  ForeignEvent end = eventOf(EventCode::Unknown, {});
  end.kind = ForeignKind::PeriodEnd;
  end.centiseconds =
      isLast && m_statusPeriod == number && m_statusClock ? std::min(*m_statusClock, m_centiseconds) : 0;
  m_game.events.push_back(end);
}

void BbGamePlays::readPlay(const pugi::xml_node& element) {
  if (const std::optional<int> clock = clockCentiseconds(textOf(element, "time")))
    m_centiseconds = *clock;
  Row row{element,
          plain(textOf(element, "action")),
          plain(textOf(element, "type")),
          plain(textOf(element, "desc")),
          {}};
  row.doer = find(teamOf(element), textOf(element, "uni"), textOf(element, "checkname"));
  take(row);
}

void BbGamePlays::take(const Row& row) {
  struct Action {
    std::string_view word;
    bool isOfPlayer; // and of nobody else
    void (BbGamePlays::*take)(const Row&);
  };
  static constexpr Action kActions[] = {
      {"GOOD", true, &BbGamePlays::takeShot},           {"MISS", true, &BbGamePlays::takeShot},
      {"REBOUND", false, &BbGamePlays::takeRebound},    {"ASSIST", true, &BbGamePlays::takeAssist},
      {"BLOCK", true, &BbGamePlays::takeBlock},         {"STEAL", true, &BbGamePlays::takeSteal},
      {"TURNOVER", false, &BbGamePlays::takeTurnover},  {"FOUL", false, &BbGamePlays::takeFoul},
      {"FOULTAKEN", true, &BbGamePlays::takeFoulTaken}, {"SUB", true, &BbGamePlays::takeSubstitution},
      {"TIMEOUT", false, &BbGamePlays::takeTimeout},
  };
  const auto action = std::ranges::find(kActions, row.action, &Action::word);
  if (action == std::end(kActions) || (action->isOfPlayer && !row.doer.isPlayer()))
    passOver(row);
  else
    (this->*action->take)(row);
}

void BbGamePlays::passOver(const Row& row) {
  m_game.unknown[row.type.empty() ? row.action : row.action + ' ' + row.type] += 1;
}

ForeignEvent BbGamePlays::eventOf(EventCode code, const Doer& doer) const {
  ForeignEvent event;
  event.code = code;
  event.period = m_period;
  event.centiseconds = m_centiseconds;
  event.doer = doer;
  return event;
}

template <typename Fits>
int BbGamePlays::lastNow(Fits fits) const {
  constexpr std::size_t kMostTogether = 64; // more at one clock are no game
  const std::size_t count = m_game.events.size();
  for (std::size_t i = count; i-- > count - std::min(count, kMostTogether);) {
    const ForeignEvent& event = m_game.events[i];
    if (event.period != m_period || event.centiseconds != m_centiseconds)
      return -1;
    if (event.kind == ForeignKind::Event && fits(event))
      return static_cast<int>(i);
  }
  return -1;
}

void BbGamePlays::takeShot(const Row& row) {
  const std::optional<bbgame::ShotMeaning> shot = bbgame::shotOf(row.type, row.description);
  if (!shot) {
    passOver(row);
    return;
  }
  ForeignEvent event = eventOf(shot->code, row.doer);
  event.isMade = row.action == "GOOD";
  event.detail = shot->detail;
  const std::string fastBreak = plain(textOf(row.element, "fastb"));
  event.isFastBreak = fastBreak == "Y" || (fastBreak == "N" && !event.isMade); // "N": it would have been
  if (shot->code == EventCode::GFT) {
    std::tie(event.numberOfThrow, event.ofThrows) = numberOfThrow(plain(textOf(row.element, "seq")));
    const auto isFoulOfOther = [&](const ForeignEvent& foul) {
      return isFoul(foul.code) && foul.doer.team == otherSide(*row.doer.team);
    };
    event.belongsTo =
        lastNow([&](const ForeignEvent& foul) { return isFoulOfOther(foul) && foul.other == row.doer; });
    if (event.belongsTo < 0)
      event.belongsTo = lastNow(isFoulOfOther);
  } else {
    event.place = placeOn(row.element);
  }
  // Without a place the kind of a shot is all that tells where it was.
  if (event.code == EventCode::GFG && !event.place) {
    if (row.type == "DUNK")
      event.code = EventCode::GDK;
    else if (event.detail == "TIPIN")
      event.code = EventCode::GPB;
    if (event.detail == "DUNK" || event.detail == "TIPIN")
      event.detail.clear();
  }
  m_missedShot = event.isMade ? -1 : static_cast<int>(m_game.events.size());
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeRebound(const Row& row) {
  const bool isDeadBall = row.type == "DEADB" || row.description.starts_with("DEADB");
  if (isDeadBall) {
    m_game.unknown["dead-ball rebound"] += 1;
    return;
  }
  const bool isOffensive = row.type == "OFF";
  if (!row.doer.team || (!isOffensive && row.type != "DEF")) {
    passOver(row);
    return;
  }
  const EventCode ofTeam = isOffensive ? EventCode::XOR : EventCode::XDR;
  const EventCode ofPlayer = isOffensive ? EventCode::SOR : EventCode::SDR;
  ForeignEvent event = eventOf(row.doer.isPlayer() ? ofPlayer : ofTeam, row.doer);
  event.belongsTo = m_missedShot;
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeFoul(const Row& row) {
  if (!row.doer.team) {
    passOver(row);
    return;
  }
  const std::string qualifiers = plain(textOf(row.element, "qualifiers"));
  const std::string_view detail = bbgame::foulOf(row.type, qualifiers);
  ForeignEvent event = eventOf(EventCode::SPF, row.doer);
  if (!row.doer.isPlayer()) {
    const bool isCoach =
        textOf(row.element, "checkname") == bbgame::kCoach || row.description == bbgame::kCoach;
    event.code = EventCode::XCF;
    event.detail = isCoach ? "C" : "B";
  } else if (detail == "T") {
    event.code = EventCode::STF;
  } else {
    event.detail = detail;
  }
  const Side other = otherSide(*row.doer.team);
  if (const Doer drawer = find(other, textOf(row.element, "drawnuni"), textOf(row.element, "drawnby"));
      drawer.isPlayer() && event.code != EventCode::XCF) {
    event.other = drawer;
  } else if (m_drawn && m_drawn->centiseconds == m_centiseconds && m_drawn->doer.team == other) {
    event.other = m_drawn->doer;
    m_drawn.reset();
  }
  constexpr int kMostThrows = 9;
  const int awarded = numberOf(row.element, "ft", -1);
  event.freeThrows = awarded > kMostThrows ? -1 : std::max(awarded, -1);
  if (qualifiers.find(bbgame::kOneAndOne) != std::string::npos)
    m_oneAndOnes.push_back(static_cast<int>(m_game.events.size()));
  m_game.events.push_back(std::move(event));
}

// A row of its own for who was fouled, beside the foul.
void BbGamePlays::takeFoulTaken(const Row& row) {
  const int foul = lastNow([&](const ForeignEvent& event) {
    return (event.code == EventCode::SPF || event.code == EventCode::STF) &&
           event.doer.team == otherSide(*row.doer.team) && !event.other.isPlayer();
  });
  if (foul >= 0) {
    m_game.events[static_cast<std::size_t>(foul)].other = row.doer;
  } else {
    passOverDrawn();
    m_drawn = Drawn{m_centiseconds, row.doer};
  }
}

void BbGamePlays::passOverDrawn() {
  if (m_drawn)
    m_game.unknown["FOULTAKEN"] += 1;
  m_drawn.reset();
}

void BbGamePlays::takeTurnover(const Row& row) {
  if (!row.doer.team) {
    passOver(row);
    return;
  }
  ForeignEvent event = eventOf(row.doer.isPlayer() ? EventCode::STO : EventCode::XTV, row.doer);
  event.detail = bbgame::turnoverOf(row.type);
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeTimeout(const Row& row) {
  ForeignEvent event = eventOf(EventCode::XTO, {row.doer.team, -1});
  event.detail = bbgame::timeoutOf(row.type);
  if (event.detail == "MEDIA" || !event.doer.team) {
    event.detail = "MEDIA";
    event.doer.team.reset();
  }
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeSubstitution(const Row& row) {
  if (row.type != "IN" && row.type != "OUT") {
    passOver(row);
    return;
  }
  ForeignEvent event = eventOf(EventCode::Unknown, row.doer);
  event.kind = row.type == "IN" ? ForeignKind::In : ForeignKind::Out;
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeAssist(const Row& row) {
  ForeignEvent event = eventOf(EventCode::SA, row.doer);
  event.belongsTo = lastNow([&](const ForeignEvent& shot) {
    return isFieldGoal(shot) && shot.isMade && shot.doer.team == row.doer.team && shot.doer != row.doer;
  });
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeBlock(const Row& row) {
  ForeignEvent event = eventOf(EventCode::SBS, row.doer);
  event.belongsTo = lastNow([&](const ForeignEvent& shot) {
    return isFieldGoal(shot) && !shot.isMade && shot.doer.team != row.doer.team;
  });
  if (event.belongsTo >= 0)
    event.other = m_game.events[static_cast<std::size_t>(event.belongsTo)].doer;
  m_game.events.push_back(std::move(event));
}

void BbGamePlays::takeSteal(const Row& row) {
  ForeignEvent event = eventOf(EventCode::SST, row.doer);
  event.belongsTo = lastNow([&](const ForeignEvent& turnover) {
    return (turnover.code == EventCode::STO || turnover.code == EventCode::XTV) &&
           turnover.doer.team != row.doer.team;
  });
  m_game.events.push_back(std::move(event));
}

// Of a one-and-one two throws are announced, and the second is there only where the first was made: what was
// taken is what was awarded.
void BbGamePlays::settleOneAndOnes() {
  std::map<int, int> taken;
  for (const int foul : m_oneAndOnes)
    taken[foul] = 0;
  const auto foulOf = [&](const ForeignEvent& event) {
    return event.code == EventCode::GFT ? taken.find(event.belongsTo) : taken.end();
  };
  for (const ForeignEvent& event : m_game.events) {
    if (const auto foul = foulOf(event); foul != taken.end())
      foul->second += 1;
  }
  for (ForeignEvent& event : m_game.events) {
    if (const auto foul = foulOf(event); foul != taken.end() && event.numberOfThrow <= foul->second)
      event.ofThrows = event.numberOfThrow > 0 ? foul->second : 0;
  }
  for (const auto& [foul, count] : taken)
    m_game.events[static_cast<std::size_t>(foul)].freeThrows = count > 0 ? count : -1;
}

} // namespace hooptab
