#include "livedata/NbaLiveWriter.h"

#include "foreign/NameForms.h"
#include "foreign/ScoreFlow.h"
#include "livedata/JsonDocument.h"
#include "livedata/NbaLiveForms.h"
#include "livedata/NbaLiveIds.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

using namespace nba_live;

struct RowKind {
  EventCode code;
  std::string_view actionType;
  std::string_view subType;
  std::string_view words; // of its description
};
constexpr std::array kRowKinds = std::to_array<RowKind>({
    {EventCode::GFG, "2pt", "", ""},
    {EventCode::GLG, "2pt", "", ""},
    {EventCode::GLD, "2pt", "", ""},
    {EventCode::GPB, "2pt", "", ""},
    {EventCode::GDK, "2pt", "", ""},
    {EventCode::GF3, "3pt", "", "3PT "},
    {EventCode::GFT, "freethrow", "", "Free Throw "},
    {EventCode::SOR, "rebound", "offensive", "REBOUND"},
    {EventCode::SDR, "rebound", "defensive", "REBOUND"},
    {EventCode::XOR, "rebound", "offensive", "offensive REBOUND"},
    {EventCode::XDR, "rebound", "defensive", "defensive REBOUND"},
    {EventCode::SST, "steal", "", "STEAL"},
    {EventCode::SBS, "block", "", "BLOCK"},
    {EventCode::STO, "turnover", "", "TURNOVER"},
    {EventCode::XTV, "turnover", "", "Team TURNOVER"},
    {EventCode::SPF, "foul", "personal", "FOUL"},
    {EventCode::STF, "foul", "technical", "technical FOUL"},
    {EventCode::XCF, "foul", "technical", "technical FOUL"},
    {EventCode::XTO, "timeout", "full", "Timeout"},
    {EventCode::XJB, "jumpball", "recovered", "Jump Ball"},
});

bool isShot(const ForeignEvent& event) {
  const EventKind* kind = kindOf(event.code);
  return kind != nullptr && kind->isShot;
}
bool isFieldGoal(const ForeignEvent& event) {
  return isShot(event) && event.code != EventCode::GFT;
}

std::string_view shotWordOf(const ForeignEvent& shot) {
  if (!shot.detail.empty())
    return shot.detail;
  switch (shot.code) {
  case EventCode::GDK: return "DUNK";
  case EventCode::GPB: return "TIPIN";
  case EventCode::GLG:
  case EventCode::GLD: return "LAYUP";
  default: return {};
  }
}

// What belongs to what, by place in the list of events; -1: nothing.
class Links {
 public:
  explicit Links(const std::vector<ForeignEvent>& events) : m_events(events) {
    for (std::vector<int>* links : {&assist, &block, &steal, &shot})
      links->assign(events.size(), -1);
    for (std::size_t i = 0; i < events.size(); ++i) {
      if (events[i].kind == ForeignKind::Event)
        link(static_cast<int>(i), events[i]);
    }
  }
  std::vector<int> assist; // of shots
  std::vector<int> block;
  std::vector<int> steal; // of turnovers
  std::vector<int> shot;  // of rebounds

 private:
  void link(int place, const ForeignEvent& event) {
    const bool isLinked = event.belongsTo >= 0 && event.belongsTo < place;
    const auto partner = static_cast<std::size_t>(isLinked ? event.belongsTo : place);
    const ForeignEvent& other = m_events[partner];
    switch (event.code) {
    case EventCode::SA: linkAssist(place, event); break;
    case EventCode::SBS: // only where it is said whose shot it was
      if (isFieldGoal(other) && !other.isMade && other.doer == event.other)
        block[partner] = place;
      break;
    case EventCode::SST:
      if ((other.code == EventCode::STO || other.code == EventCode::XTV) &&
          other.doer.team != event.doer.team)
        steal[partner] = place;
      break;
    case EventCode::SOR:
    case EventCode::SDR:
    case EventCode::XOR:
    case EventCode::XDR:
      if (isShot(other) && !other.isMade)
        shot[static_cast<std::size_t>(place)] = static_cast<int>(partner);
      break;
    default: break;
    }
  }
  // An assist stands on its shot and nowhere else: where it names none, or one that has an assist, on one
  // that stands near.
  void linkAssist(int place, const ForeignEvent& event) {
    constexpr int kNear = 6;
    const auto take = [&](int near) {
      if (near < 0 || near >= place)
        return false;
      const ForeignEvent& made = m_events[static_cast<std::size_t>(near)];
      int& holder = assist[static_cast<std::size_t>(near)];
      const bool isIts = isShot(made) && made.isMade && made.doer.team == event.doer.team &&
                         made.period == event.period && holder < 0;
      holder = isIts ? place : holder;
      return isIts;
    };
    bool isTaken = take(event.belongsTo);
    for (int near = place - 1; !isTaken && near >= place - kNear; --near)
      isTaken = take(near);
  }

  const std::vector<ForeignEvent>& m_events;
};

class PlaysWriter {
 public:
  explicit PlaysWriter(const ForeignGame& game)
      : m_game(game), m_ids(game), m_links(game.events), m_origins(shotOrigins(game)) {}

  [[nodiscard]] OrderedJson document() {
    for (std::size_t i = 0; i < m_game.events.size(); ++i)
      write(i);
    if (m_game.isFinished && !m_game.events.empty())
      add(rowOf(m_game.events.size(), m_game.events.back(), "game", "end", "Game End"));
    return {{"meta", {{"version", 1}, {"code", 200}}},
            {"game", {{"gameId", m_ids.game()}, {"actions", std::move(m_rows)}}}};
  }

 private:
  void write(std::size_t place);
  void writeEvent(std::size_t place, const RowKind& kind);
  void add(OrderedJson row) { m_rows.push_back(std::move(row)); }

  // What every row has.
  [[nodiscard]] OrderedJson rowOf(std::size_t place, const ForeignEvent& event, std::string_view actionType,
                                  std::string_view subType, std::string_view description) const;
  void nameDoer(const Doer& doer, OrderedJson& row) const;
  void fillShot(std::size_t place, OrderedJson& row) const;
  void fillPlace(const std::pair<double, double>& place, OrderedJson& row) const;
  void fillFoul(const ForeignEvent& event, OrderedJson& row) const;
  void fillJumpBall(const ForeignEvent& event, OrderedJson& row) const;
  void fillOthers(std::size_t place, OrderedJson& row) const;
  void namePerson(const Doer& doer, const std::string& name, const std::string& id, OrderedJson& row) const {
    if (!doer.isPlayer())
      return;
    row[name] = partsOfName(nameOf(doer)).family;
    row[id] = m_ids.player(doer);
  }
  [[nodiscard]] const std::string& nameOf(const Doer& doer) const {
    return m_game.teams[*doer.team].players[static_cast<std::size_t>(doer.player)].name;
  }
  [[nodiscard]] bool canBeWritten(const ForeignEvent& event) const;

  const ForeignGame& m_game;
  NbaLiveIds m_ids;
  Links m_links;
  std::vector<ShotOrigin> m_origins;
  OrderedJson m_rows = OrderedJson::array();
  PerSide<int> m_points = {};
};

bool PlaysWriter::canBeWritten(const ForeignEvent& event) const {
  if (event.code == EventCode::XJB)
    return event.wonBy && event.doer.isPlayer() && event.other.isPlayer();
  if (event.code == EventCode::XTO)
    return true;
  return kindOf(event.code)->isOfTeam ? event.doer.team.has_value() : event.doer.isPlayer();
}

void PlaysWriter::write(std::size_t place) {
  const ForeignEvent& event = m_game.events[place];
  switch (event.kind) {
  case ForeignKind::PeriodStart: add(rowOf(place, event, "period", "start", "Period Start")); return;
  case ForeignKind::PeriodEnd: add(rowOf(place, event, "period", "end", "Period End")); return;
  case ForeignKind::In:
  case ForeignKind::Out: {
    const bool comes = event.kind == ForeignKind::In;
    if (!event.doer.isPlayer())
      return;
    OrderedJson row = rowOf(place, event, "substitution", comes ? "in" : "out",
                            (comes ? "SUB in: " : "SUB out: ") + shortName(nameOf(event.doer)));
    nameDoer(event.doer, row);
    add(std::move(row));
    return;
  }
  case ForeignKind::Event: break;
  }
  const auto kind = std::ranges::find(kRowKinds, event.code, &RowKind::code);
  if (kind != kRowKinds.end() && canBeWritten(event))
    writeEvent(place, *kind);
}

void PlaysWriter::writeEvent(std::size_t place, const RowKind& kind) {
  const ForeignEvent& event = m_game.events[place];
  if (const int points = pointsOf(event); points > 0)
    m_points[*event.doer.team] += points;
  OrderedJson row = rowOf(place, event, kind.actionType, kind.subType, kind.words);
  nameDoer(event.doer, row);
  const EventKind& own = *kindOf(event.code);
  if (own.isOfTeam && event.doer.team && event.code != EventCode::XCF && event.code != EventCode::XJB)
    row["qualifiers"].push_back("team");
  if (own.isShot)
    fillShot(place, row);
  else if (isFoul(event.code))
    fillFoul(event, row);
  else if (event.code == EventCode::XJB)
    fillJumpBall(event, row);
  else
    fillOthers(place, row);
  const std::string who = event.doer.isPlayer() ? shortName(nameOf(event.doer)) : "TEAM";
  row["description"] = (own.isShot && !event.isMade ? "MISS " : "") + who + ' ' + std::string(kind.words) +
                       (own.isShot ? row["subType"].get<std::string>() : std::string());
  add(std::move(row));
}

OrderedJson PlaysWriter::rowOf(std::size_t place, const ForeignEvent& event, std::string_view actionType,
                               std::string_view subType, std::string_view description) const {
  constexpr int kOrderStep = 10000;
  OrderedJson row;
  row["actionNumber"] = place + 1;
  row["clock"] = clockText(event.centiseconds);
  if (event.wallClock > 0)
    row["timeActual"] = timeText(event.wallClock);
  row["period"] = event.period;
  row["periodType"] = event.period > m_game.periods ? "OVERTIME" : "REGULAR";
  const bool isOfGame = actionType == "period" || actionType == "game";
  if (!isOfGame && event.doer.team) {
    row["teamId"] = m_ids.team(event.doer.team);
    row["teamTricode"] = m_game.teams[*event.doer.team].abbreviation;
  }
  row["actionType"] = actionType;
  row["subType"] = subType;
  row["qualifiers"] = OrderedJson::array();
  row["personId"] = 0;
  for (const char* name : {"x", "y", "side"})
    row[name] = nullptr;
  row["possession"] = isOfGame ? 0 : m_ids.team(event.doer.team);
  row["scoreHome"] = std::to_string(m_points[Side::Home]);
  row["scoreAway"] = std::to_string(m_points[Side::Visitor]);
  row["orderNumber"] = static_cast<std::int64_t>(place + 1) * kOrderStep;
  row["xLegacy"] = nullptr;
  row["yLegacy"] = nullptr;
  row["isFieldGoal"] = event.kind == ForeignKind::Event && isFieldGoal(event) ? 1 : 0;
  row["description"] = description;
  row["personIdsFilter"] = OrderedJson::array();
  return row;
}

void PlaysWriter::nameDoer(const Doer& doer, OrderedJson& row) const {
  if (!doer.isPlayer())
    return;
  row["personId"] = m_ids.player(doer);
  row["playerName"] = partsOfName(nameOf(doer)).family;
  row["playerNameI"] = shortName(nameOf(doer));
  row["personIdsFilter"].push_back(m_ids.player(doer));
}

// As if all were shot at the basket on the left.
void PlaysWriter::fillPlace(const std::pair<double, double>& place, OrderedJson& row) const {
  constexpr double kFeetToRing = 5.25;
  constexpr double kHundredthOfLength = 0.94; // of 94 feet
  constexpr double kHundredthOfWidth = 0.5;
  const auto [across, away] = legacyOf(place);
  row["xLegacy"] = across;
  row["yLegacy"] = away;
  row["x"] = (away / 10.0 + kFeetToRing) / kHundredthOfLength;
  row["y"] = 50.0 - across / 10.0 / kHundredthOfWidth;
  row["side"] = "left";
  row["shotDistance"] = std::round(std::hypot(across, away) * 10) / 100;
}

void PlaysWriter::fillShot(std::size_t place, OrderedJson& row) const {
  const ForeignEvent& shot = m_game.events[place];
  row["shotResult"] = shot.isMade ? "Made" : "Missed";
  const ShotOrigin& origin = m_origins[place];
  const std::array<std::pair<bool, const char*>, 4> qualifiers = {{{shot.isFastBreak, "fastbreak"},
                                                                   {origin.isInPaint, "pointsinthepaint"},
                                                                   {origin.isSecondChance, "2ndchance"},
                                                                   {origin.isFromTurnover, "fromturnover"}}};
  for (const auto& [holds, word] : qualifiers) {
    if (holds)
      row["qualifiers"].push_back(word);
  }
  if (const int assist = m_links.assist[place]; assist >= 0) {
    const Doer& helper = m_game.events[static_cast<std::size_t>(assist)].doer;
    namePerson(helper, "assistPlayerNameInitial", "assistPersonId", row);
    if (helper.isPlayer())
      row["assistPlayerNameInitial"] = shortName(nameOf(helper));
  }
  if (shot.code == EventCode::GFT) {
    if (shot.numberOfThrow > 0)
      row["subType"] = std::to_string(shot.numberOfThrow) + " of " + std::to_string(shot.ofThrows);
    return;
  }
  const auto word = std::ranges::find(kShotWords, shotWordOf(shot), &ShotWord::detail);
  if (word != kShotWords.end()) {
    row["subType"] = word->subType;
    row["descriptor"] = word->descriptor;
  }
  if (shot.place)
    fillPlace(*shot.place, row);
  if (const int block = m_links.block[place]; block >= 0)
    namePerson(m_game.events[static_cast<std::size_t>(block)].doer, "blockPlayerName", "blockPersonId", row);
}

void PlaysWriter::fillFoul(const ForeignEvent& event, OrderedJson& row) const {
  if (event.freeThrows > 0)
    row["qualifiers"].push_back(std::to_string(event.freeThrows) + "freethrow");
  if (event.code == EventCode::SPF && event.detail == "O")
    row["subType"] = "offensive";
  else if (event.code == EventCode::SPF && event.detail != "P")
    row["descriptor"] = wordOf(kFoulWords, event.detail);
  if (event.code == EventCode::XCF && event.detail == "C") {
    const std::string& coach = m_game.teams[*event.doer.team].coach;
    row["personId"] = m_ids.coach(*event.doer.team);
    row["playerName"] = partsOfName(coach).family;
    row["playerNameI"] = shortName(coach);
  }
  namePerson(event.other, "foulDrawnPlayerName", "foulDrawnPersonId", row);
}

void PlaysWriter::fillJumpBall(const ForeignEvent& event, OrderedJson& row) const {
  const Doer& winner = event.doer.team == event.wonBy ? event.doer : event.other;
  const Doer& loser = event.doer.team == event.wonBy ? event.other : event.doer;
  row["teamId"] = m_ids.team(winner.team);
  row["teamTricode"] = m_game.teams[*winner.team].abbreviation;
  row["possession"] = m_ids.team(winner.team);
  row["personIdsFilter"] = OrderedJson::array({m_ids.player(winner), m_ids.player(loser)});
  nameDoer(winner, row);
  namePerson(winner, "jumpBallWonPlayerName", "jumpBallWonPersonId", row);
  namePerson(loser, "jumpBallLostPlayerName", "jumpBallLostPersonId", row);
}

void PlaysWriter::fillOthers(std::size_t place, OrderedJson& row) const {
  const ForeignEvent& event = m_game.events[place];
  if (const int shot = m_links.shot[place]; shot >= 0)
    row["shotActionNumber"] = shot + 1;
  if (event.code == EventCode::STO || event.code == EventCode::XTV) {
    row["subType"] = event.detail == "OTHER" ? "other" : wordOf(kTurnoverWords, event.detail);
    if (const int steal = m_links.steal[place]; steal >= 0)
      namePerson(m_game.events[static_cast<std::size_t>(steal)].doer, "stealPlayerName", "stealPersonId",
                 row);
  }
  if (event.code == EventCode::XTO && event.detail == "SHORT")
    row["subType"] = "short";
}

} // namespace

std::string writeNbaLivePlays(const ForeignGame& game) {
  return jsonText(PlaysWriter(game).document());
}

} // namespace hooptab
