#include "livedata/LiveStatsRows.h"

#include "foreign/NameForms.h"
#include "livedata/LiveStatsKinds.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace hooptab {

namespace {

std::string firstLetter(const std::string& name) {
  std::string_view rest = name;
  return rest.empty() ? std::string() : std::string(takeCodePoint(rest).bytes);
}

const ForeignPlayer* playerOf(const ForeignGame& game, const Doer& doer) {
  if (!doer.isPlayer())
    return nullptr;
  const std::vector<ForeignPlayer>& players = game.teams[*doer.team].players;
  const auto place = static_cast<std::size_t>(doer.player);
  return place < players.size() ? &players[place] : nullptr;
}

int teamInLiveStats(std::optional<Side> team) {
  return team == Side::Home ? 1 : team == Side::Visitor ? 2 : 0;
}

// What a row says beside its time and its doer.
struct Action {
  std::string type;
  std::string kind = {};
  std::vector<std::string> qualifiers = {};
};

std::string fieldGoalKind(const ForeignEvent& event) {
  if (const std::string_view kind = theirsOf(kLiveStatsShots, event.detail); !kind.empty())
    return std::string(kind);
  switch (event.code) {
  case EventCode::GLG:
  case EventCode::GLD: return "layup";
  case EventCode::GPB: return "tipinlayup";
  case EventCode::GDK: return "dunk";
  default: return {};
  }
}

Action foulAction(const ForeignEvent& event) {
  Action action{"foul"};
  const std::string_view kind = event.detail == "S" || (event.detail.empty() && event.code == EventCode::SPF)
                                    ? "P"
                                    : std::string_view(event.detail);
  const auto foul = std::ranges::find_if(kLiveStatsFouls, [&](const LiveStatsFoul& each) {
    return each.code == event.code && each.ours == kind;
  });
  action.kind = foul == kLiveStatsFouls.end() ? "technical" : foul->theirs;
  if (event.detail == "S")
    action.qualifiers.emplace_back("shooting");
  if (event.freeThrows >= 1 && event.freeThrows <= 3)
    action.qualifiers.push_back(std::to_string(event.freeThrows) + "freethrow");
  return action;
}

Action shotAction(const ForeignEvent& event, const ShotOrigin& origin, bool isBlocked) {
  Action action;
  if (event.code == EventCode::GFT) {
    action.type = "freethrow";
    if (event.numberOfThrow > 0)
      action.kind = std::to_string(event.numberOfThrow) + "of" + std::to_string(event.ofThrows);
  } else {
    action.type = event.code == EventCode::GF3 ? "3pt" : "2pt";
    action.kind = fieldGoalKind(event);
  }
  const auto add = [&](bool holds, const char* qualifier) {
    if (holds)
      action.qualifiers.emplace_back(qualifier);
  };
  add(isBlocked, "blocked");
  add(origin.isSecondChance, "2ndchance");
  add(event.isFastBreak, "fastbreak");
  add(origin.isFromTurnover, "fromturnover");
  add(origin.isInPaint, "pointsinthepaint");
  return action;
}

Action plainAction(const ForeignEvent& event) {
  const bool isOfTeam = !event.doer.isPlayer();
  const std::vector<std::string> team =
      isOfTeam ? std::vector<std::string>{"team"} : std::vector<std::string>();
  switch (event.code) {
  case EventCode::SA: return {"assist"};
  case EventCode::SBS: return {"block"};
  case EventCode::SST: return {"steal"};
  case EventCode::SOR:
  case EventCode::XOR: return {"rebound", "offensive", team};
  case EventCode::SDR:
  case EventCode::XDR: return {"rebound", "defensive", team};
  case EventCode::STO:
  case EventCode::XTV: return {"turnover", std::string(theirsOf(kLiveStatsTurnovers, event.detail)), team};
  case EventCode::XTO:
    if (!event.doer.team)
      return {"timeout", "officials"};
    return {"timeout", event.detail == "SHORT" ? "short" : "full"}; // which is what the rules know
  default: return {};
  }
}

class RowWriting {
 public:
  RowWriting(const ForeignGame& game, const std::vector<ShotOrigin>& origins)
      : m_game(game), m_origins(origins) {
    number();
    begin();
    for (std::size_t i = 0; i < game.events.size(); ++i)
      write(i);
    if (game.isFinished && !game.events.empty())
      addRow(game.events.back().period, game.events.back().centiseconds, {}, {"game", "end", {"confirmed"}});
    for (auto row = m_rows.rbegin(); row != m_rows.rend(); ++row)
      m_result.events.push_back(std::move(*row));
  }
  [[nodiscard]] LiveStatsRows takeResult() { return std::move(m_result); }

 private:
  [[nodiscard]] static int rowsOf(const ForeignEvent& event) {
    const bool isOfNobody = !event.doer.team;
    if (event.kind != ForeignKind::Event)
      return isOfNobody && (event.kind == ForeignKind::In || event.kind == ForeignKind::Out) ? 0 : 1;
    const EventKind* kind = kindOf(event.code);
    if (kind == nullptr || (isOfNobody && event.code != EventCode::XTO) || event.code == EventCode::SU1 ||
        event.code == EventCode::SU2 || event.code == EventCode::XAR ||
        (event.code == EventCode::XJB && !event.wonBy))
      return 0;
    if (event.code == EventCode::XJB)
      return 3;
    return isFoul(event.code) && event.other.isPlayer() ? 2 : 1;
  }
  // The first row is that of the game's start. An event may belong to a later one, so all numbers come first.
  void number() {
    int next = 2;
    m_numbers.reserve(m_game.events.size());
    m_isBlocked.resize(m_game.events.size());
    for (const ForeignEvent& event : m_game.events) {
      const int rows = rowsOf(event);
      m_numbers.push_back(rows > 0 ? next : 0);
      next += rows;
      if (event.code == EventCode::SBS && isEvent(event.belongsTo))
        m_isBlocked[static_cast<std::size_t>(event.belongsTo)] = true;
    }
  }
  [[nodiscard]] bool isEvent(int place) const {
    return place >= 0 && static_cast<std::size_t>(place) < m_game.events.size();
  }
  void begin() {
    const ForeignEvent* first = m_game.events.empty() ? nullptr : &m_game.events.front();
    addRow(1, first != nullptr ? first->centiseconds : m_game.minutes * 6000, {}, {"game", "start"});
  }

  void write(std::size_t place) {
    const ForeignEvent& event = m_game.events[place];
    if (m_numbers[place] == 0)
      return;
    switch (event.kind) {
    case ForeignKind::In: return addRow(event, {"substitution", "in"});
    case ForeignKind::Out: return addRow(event, {"substitution", "out"});
    case ForeignKind::PeriodStart: return addRow(event, {"period", "start"});
    case ForeignKind::PeriodEnd: return addRow(event, {"period", "end", {"confirmed"}});
    case ForeignKind::Event: break;
    }
    if (kindOf(event.code)->isShot)
      return writeShot(place);
    if (event.code == EventCode::XJB)
      return writeJumpBall(event);
    if (!isFoul(event.code))
      return addRow(event, plainAction(event));
    addRow(event, foulAction(event));
    if (event.other.isPlayer())
      addRow(event.period, event.centiseconds, event.other, {"foulon"}, m_numbers[place]);
  }
  void writeJumpBall(const ForeignEvent& event) {
    const int length = (event.period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * 6000;
    const int number = static_cast<int>(m_rows.size()) + 1;
    const bool isAtStart = length - event.centiseconds <= 200; // the clock runs by the time it is tapped
    addRow(event.period, event.centiseconds, {}, {"jumpball", isAtStart ? "startperiod" : "heldball"});
    for (const Doer& jumper : {event.doer, event.other})
      addRow(event.period, event.centiseconds, jumper,
             {"jumpball", jumper.team == event.wonBy ? "won" : "lost"}, number);
  }
  void writeShot(std::size_t place) {
    const ForeignEvent& event = m_game.events[place];
    if (event.isMade)
      m_score[*event.doer.team] += pointsOf(event);
    const Action action = shotAction(event, m_origins[place], m_isBlocked[place]);
    addRow(event, action);
    m_rows.back()["success"] = event.isMade ? 1 : 0;
    m_rows.back()["scoring"] = 1;
    if (event.code == EventCode::GFT || !event.place)
      return;
    const auto [along, across] = percentOf(event);
    OrderedJson shot = {{"r", event.isMade ? 1 : 0},
                        {"x", along},
                        {"y", across},
                        {"p", event.doer.player + 1},
                        {"pno", event.doer.player + 1},
                        {"tno", teamInLiveStats(event.doer.team)},
                        {"per", periodInLiveStats(m_game, event.period)},
                        {"perType", periodTypeInLiveStats(m_game, event.period)},
                        {"actionType", action.type},
                        {"actionNumber", m_numbers[place]},
                        {"previousAction", ""},
                        {"subType", action.kind}};
    addPlayerTo(shot, event.doer);
    m_result.shots[*event.doer.team].push_back(std::move(shot));
  }
  // The home team shoots at the far basket until half-time.
  [[nodiscard]] std::pair<double, double> percentOf(const ForeignEvent& event) const {
    const auto rounded = [](double percent) { return std::round(percent * 10'000) / 10'000; };
    const double along = event.place->first / kLiveStatsUnitsAlong;
    const double across = event.place->second / kLiveStatsUnitsAcross;
    const bool isFirstHalf = event.period <= m_game.periods / 2;
    const bool isFar = (event.doer.team == Side::Home) == isFirstHalf;
    return isFar ? std::pair(rounded(100 - along), rounded(100 - across))
                 : std::pair(rounded(along), rounded(across));
  }

  void addRow(const ForeignEvent& event, const Action& action) {
    addRow(event.period, event.centiseconds, event.doer, action,
           isEvent(event.belongsTo) ? m_numbers[static_cast<std::size_t>(event.belongsTo)] : 0);
  }
  void addRow(int period, int centiseconds, const Doer& doer, const Action& action, int partner = 0) {
    const std::string seconds = Module1::clockText(centiseconds / 100);
    const int hundredths = std::max(centiseconds, 0) % 100;
    const ForeignPlayer* player = playerOf(m_game, doer);
    OrderedJson row = {{"gt", seconds},
                       {"clock", seconds + (hundredths < 10 ? ":0" : ":") + std::to_string(hundredths)},
                       {"s1", m_score[Side::Home]},
                       {"s2", m_score[Side::Visitor]},
                       {"lead", m_score[Side::Home] - m_score[Side::Visitor]},
                       {"tno", teamInLiveStats(doer.team)},
                       {"period", periodInLiveStats(m_game, period)},
                       {"periodType", periodTypeInLiveStats(m_game, period)},
                       {"pno", player != nullptr ? doer.player + 1 : 0},
                       {"player", ""},
                       {"success", 1},
                       {"actionType", action.type},
                       {"actionNumber", m_rows.size() + 1},
                       {"previousAction", partner > 0 ? OrderedJson(partner) : OrderedJson("")},
                       {"qualifier", action.qualifiers},
                       {"subType", action.kind},
                       {"scoring", 0},
                       {"shirtNumber", ""}};
    addPlayerTo(row, doer);
    m_rows.push_back(std::move(row));
  }
  void addPlayerTo(OrderedJson& object, const Doer& doer) const {
    const ForeignPlayer* player = playerOf(m_game, doer);
    if (player == nullptr)
      return;
    object["player"] = shortName(player->name);
    object["shirtNumber"] = player->jersey;
    addPersonTo(object, player->name);
  }

  const ForeignGame& m_game;
  const std::vector<ShotOrigin>& m_origins;
  std::vector<int> m_numbers = {};    // of the first row, by place in the list of events; 0: none
  std::vector<bool> m_isBlocked = {}; // by place in the list of events
  std::vector<OrderedJson> m_rows = {};
  PerSide<int> m_score = {};
  LiveStatsRows m_result = {};
};

} // namespace

LiveStatsRows liveStatsRows(const ForeignGame& game, const std::vector<ShotOrigin>& origins) {
  return RowWriting(game, origins).takeResult();
}

void addPersonTo(OrderedJson& object, const std::string& name) {
  const NameParts parts = partsOfName(name);
  object["firstName"] = parts.given;
  object["familyName"] = parts.family;
  object["internationalFirstName"] = parts.given;
  object["internationalFamilyName"] = parts.family;
  object["firstNameInitial"] = firstLetter(parts.given);
  object["familyNameInitial"] = firstLetter(parts.family);
  object["internationalFirstNameInitial"] = firstLetter(parts.given);
  object["internationalFamilyNameInitial"] = firstLetter(parts.family);
  object["scoreboardName"] = shortName(name);
}

std::string shortName(const std::string& name) {
  const NameParts parts = partsOfName(name);
  return parts.given.empty() ? parts.family : firstLetter(parts.given) + ". " + parts.family;
}

int periodInLiveStats(const ForeignGame& game, int period) {
  return period > game.periods ? period - game.periods : period;
}

std::string periodTypeInLiveStats(const ForeignGame& game, int period) {
  return period > game.periods ? "OVERTIME" : "REGULAR";
}

} // namespace hooptab
