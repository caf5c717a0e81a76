#include "livedata/LiveStatsEvents.h"

#include "foreign/ClockForms.h"
#include "game/GameEvent.h"
#include "livedata/LiveStatsKinds.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

struct Row {
  const Json& json;
  std::string type;
  std::string kind; // subType
  int number = 0;   // actionNumber
  int partner = 0;  // previousAction; 0: none
  int period = 1;
  int centiseconds = 0;
  Doer doer = {};

  [[nodiscard]] bool has(std::string_view qualifier) const {
    return std::ranges::any_of(listOf(json, "qualifier"),
                               [&](const Json& each) { return textOf(each) == qualifier; });
  }
  // A row of this alone, as it is counted.
  [[nodiscard]] std::string name() const {
    if (type.empty())
      return "row without a kind";
    return kind.empty() ? type : type + ' ' + kind;
  }
  [[nodiscard]] ForeignEvent event(EventCode code) const {
    ForeignEvent made;
    made.code = code;
    made.period = period;
    made.centiseconds = centiseconds;
    made.doer = doer;
    return made;
  }
};

class EventReading {
 public:
  EventReading(const Json& file, LiveStatsNumbers& numbers, ForeignGame& game)
      : m_numbers(numbers), m_game(game), m_centiseconds(game.minutes * 6000) {
    readPlaces(file);
    const Json& rows = listOf(file, "pbp");
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
      take(rowOf(*row));
    link();
  }

 private:
  using Taker = bool (EventReading::*)(const Row&);
  struct Kind {
    std::string_view type;
    Taker take; // false: the row is no event of ours
    EventCode code = EventCode::Unknown;
    EventCode ofTeam = EventCode::Unknown;
  };
  static constexpr std::size_t kKindCount = 15;
  static const std::array<Kind, kKindCount>& kinds();

  // The places of the shots stand apart.
  void readPlaces(const Json& file) {
    const Json& teams = member(file, "tm");
    for (const char* team : {"1", "2"}) {
      for (const Json& shot : listOf(member(teams, team), "shot")) {
        const std::optional<double> along = decimalOf(shot, "x");
        const std::optional<double> across = decimalOf(shot, "y");
        const std::optional<int> number = numberOf(member(shot, "actionNumber"));
        if (along && across && number)
          m_places[*number] = {*along, *across};
      }
    }
  }
  // As if at the left-hand basket.
  [[nodiscard]] std::optional<std::pair<double, double>> placeOf(int shot) const {
    const auto found = m_places.find(shot);
    if (found == m_places.end())
      return std::nullopt;
    auto [along, across] = found->second;
    if (along > 50) {
      along = 100 - along;
      across = 100 - across;
    }
    return std::pair(std::clamp(along * kLiveStatsUnitsAlong, 0.0, 126.0),
                     std::clamp(across * kLiveStatsUnitsAcross, 0.0, 200.0));
  }

  // What a row does not say of time is as in the row before.
  [[nodiscard]] Row rowOf(const Json& json) {
    Row row{json, textOf(json, "actionType"), textOf(json, "subType")};
    row.number = numberOf(json, "actionNumber", 0);
    row.partner = numberOf(json, "previousAction", 0);
    const bool isOvertime = textOf(json, "periodType") == "OVERTIME";
    const int before = isOvertime ? m_game.periods : 0;
    if (const int period = numberOf(json, "period", 0); period >= 1 && period <= kLastPeriod - before)
      begin(before + period);
    row.period = m_period;
    std::optional<int> clock = clockCentiseconds(textOf(json, "clock"));
    if (!clock)
      clock = clockCentiseconds(textOf(json, "gt"));
    m_centiseconds = clock.value_or(m_centiseconds);
    row.centiseconds = m_centiseconds;
    row.doer = doerOf(json);
    return row;
  }
  void begin(int period) {
    if (period == m_period)
      return;
    m_period = period;
    m_centiseconds = (period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * 6000;
  }
  Doer doerOf(const Json& json) {
    const std::optional<Side> team = teamOfLiveStats(numberOf(json, "tno", 0));
    const int number = numberOf(json, "pno", 0);
    if (!team || number <= 0)
      return {team, -1};
    std::vector<ForeignPlayer>& players = m_game.teams[*team].players;
    const auto [place, isNew] = m_numbers[*team].emplace(number, static_cast<int>(players.size()));
    if (isNew) {
      ForeignPlayer player;
      player.jersey = textOf(json, "shirtNumber");
      player.name = nameInLiveStats(json);
      players.push_back(std::move(player));
    }
    return {team, place->second};
  }

  void take(const Row& row) {
    const auto& all = kinds();
    const auto kind = std::ranges::find(all, row.type, &Kind::type);
    m_kind = kind == all.end() ? nullptr : &*kind;
    if (m_kind == nullptr || !(this->*m_kind->take)(row))
      ++m_game.unknown[row.name()];
  }
  bool add(const Row& row, ForeignEvent event) {
    if (row.number > 0)
      m_events.emplace(row.number, static_cast<int>(m_game.events.size()));
    m_partners.push_back(row.partner);
    m_game.events.push_back(std::move(event));
    return true;
  }

  // Of a player, or where there is such a thing of his team.
  std::optional<ForeignEvent> eventOf(const Row& row) const {
    const EventCode code = row.doer.isPlayer() ? m_kind->code : m_kind->ofTeam;
    if (!row.doer.team || code == EventCode::Unknown)
      return std::nullopt;
    return row.event(code);
  }
  bool takePlain(const Row& row) {
    std::optional<ForeignEvent> event = eventOf(row);
    return event && add(row, std::move(*event));
  }
  bool takeShot(const Row& row) {
    std::optional<ForeignEvent> event = eventOf(row);
    if (!event)
      return false;
    event->isMade = flagOf(row.json, "success");
    event->isFastBreak = row.has("fastbreak");
    event->detail = oursOf(kLiveStatsShots, row.kind);
    event->place = placeOf(row.number);
    if (event->code == EventCode::GFG && !event->place) {
      if (event->detail == "DUNK")
        event->code = EventCode::GDK;
      else if (event->detail == "TIPIN")
        event->code = EventCode::GPB;
    }
    return add(row, std::move(*event));
  }
  bool takeThrow(const Row& row) {
    std::optional<ForeignEvent> event = eventOf(row);
    if (!event)
      return false;
    event->isMade = flagOf(row.json, "success");
    event->isFastBreak = row.has("fastbreak");
    const std::size_t of = row.kind.find("of");
    if (of != std::string::npos) {
      const int number = Module1::wholeNumber(row.kind.substr(0, of));
      const int all = Module1::wholeNumber(row.kind.substr(of + 2));
      if (number >= 1 && number <= all && all <= 9) {
        event->numberOfThrow = number;
        event->ofThrows = all;
      }
    }
    return add(row, std::move(*event));
  }
  bool takeRebound(const Row& row) {
    if (row.kind == "offensivedeadball" || row.kind == "defensivedeadball") {
      ++m_game.unknown["dead-ball rebound"]; // in no total of anybody
      return true;
    }
    std::optional<ForeignEvent> event = eventOf(row);
    if (!event)
      return false;
    const bool isOffensive = row.kind == "offensive";
    if (!isOffensive && row.kind != "defensive")
      return false;
    if (isOffensive)
      event->code = row.doer.isPlayer() ? EventCode::SOR : EventCode::XOR;
    return add(row, std::move(*event));
  }
  bool takeTurnover(const Row& row) {
    std::optional<ForeignEvent> event = eventOf(row);
    if (!event)
      return false;
    event->detail = oursOf(kLiveStatsTurnovers, row.kind);
    if (event->detail.empty() && !row.kind.empty())
      event->detail = "OTHER";
    return add(row, std::move(*event));
  }
  bool takeFoul(const Row& row) {
    const auto foul = std::ranges::find(kLiveStatsFouls, row.kind, &LiveStatsFoul::theirs);
    EventCode code = foul == kLiveStatsFouls.end() ? EventCode::SPF : foul->code;
    if (code == EventCode::STF && !row.doer.isPlayer())
      code = EventCode::XCF;
    if (!row.doer.team || (code != EventCode::XCF && !row.doer.isPlayer()))
      return false;
    ForeignEvent event = row.event(code);
    if (code == EventCode::XCF)
      event.doer.player = -1;
    if (foul != kLiveStatsFouls.end())
      event.detail = foul->ours;
    if (event.detail == "P" && row.has("shooting"))
      event.detail = "S";
    for (int throws = 1; throws <= 3; ++throws) {
      if (row.has(std::to_string(throws) + "freethrow"))
        event.freeThrows = throws;
    }
    return add(row, std::move(event));
  }
  bool takeFouled(const Row& row) {
    if (!row.doer.isPlayer() || row.partner == 0)
      return false;
    m_fouled.emplace_back(row.partner, row.doer);
    return true;
  }
  bool takeSubstitution(const Row& row) {
    if (!row.doer.isPlayer() || (row.kind != "in" && row.kind != "out"))
      return false;
    ForeignEvent event = row.event(EventCode::Unknown);
    event.kind = row.kind == "in" ? ForeignKind::In : ForeignKind::Out;
    return add(row, std::move(event));
  }
  bool takeTimeOut(const Row& row) {
    ForeignEvent event = row.event(EventCode::XTO);
    event.doer.player = -1;
    event.detail = oursOf(kLiveStatsTimeOuts, row.kind);
    if (event.detail == "MEDIA")
      event.doer.team.reset();
    else if (!event.doer.team)
      return false;
    return add(row, std::move(event));
  }
  // A row that says why, and behind it one for each jumper, which name it.
  bool takeJumpBall(const Row& row) {
    const bool hasWon = row.kind == "won";
    if (!hasWon && row.kind != "lost") {
      if (row.kind != "startperiod" && row.number > 0)
        m_jumpBalls.emplace(row.number, row.name());
      return row.number > 0 || row.kind == "startperiod";
    }
    if (!row.doer.isPlayer())
      return false;
    const auto [first, isFirst] = m_jumpers.emplace(row.partner, Jumper{row.doer, hasWon});
    if (isFirst)
      return true;
    const Jumper other = first->second;
    m_jumpers.erase(first);
    if (other.doer.team == row.doer.team || other.hasWon == hasWon)
      return false;
    m_jumpBalls.erase(row.partner);
    ForeignEvent event = row.event(EventCode::XJB);
    event.doer = row.doer.team == Side::Visitor ? row.doer : other.doer;
    event.other = row.doer.team == Side::Visitor ? other.doer : row.doer;
    event.wonBy = hasWon ? row.doer.team : other.doer.team;
    return add(row, std::move(event));
  }
  bool takePeriod(const Row& row) {
    if (row.kind != "start" && row.kind != "end")
      return false;
    ForeignEvent event = row.event(EventCode::Unknown);
    event.kind = row.kind == "start" ? ForeignKind::PeriodStart : ForeignKind::PeriodEnd;
    event.doer = {};
    return add(row, std::move(event));
  }
  bool takeGame(const Row& row) {
    m_game.isFinished = m_game.isFinished || row.kind == "end";
    return row.kind == "start" || row.kind == "end";
  }

  // The file names partners by the number of their row, which may come later.
  void link() {
    for (std::size_t i = 0; i < m_game.events.size(); ++i) {
      ForeignEvent& event = m_game.events[i];
      const auto partner = m_events.find(m_partners[i]);
      if (m_partners[i] == 0 || partner == m_events.end() || !belongsTo(event, m_game.events[at(*partner)]))
        continue;
      event.belongsTo = partner->second;
      if (event.code == EventCode::SBS)
        event.other = m_game.events[at(*partner)].doer;
    }
    for (const auto& [foul, fouled] : m_fouled) {
      const auto found = m_events.find(foul);
      ForeignEvent* event = found == m_events.end() ? nullptr : &m_game.events[at(*found)];
      const bool canBeDrawn = event != nullptr && event->kind == ForeignKind::Event && isFoul(event->code) &&
                              event->code != EventCode::XCF && event->doer.team != fouled.team &&
                              !event->other.isPlayer();
      if (canBeDrawn)
        event->other = fouled;
      else
        ++m_game.unknown["foulon"];
    }
    for (const auto& [number, name] : m_jumpBalls)
      ++m_game.unknown[name];
    if (!m_jumpers.empty())
      m_game.unknown["jumpball"] += static_cast<int>(m_jumpers.size());
  }
  [[nodiscard]] static std::size_t at(const std::pair<const int, int>& entry) {
    return static_cast<std::size_t>(entry.second);
  }
  [[nodiscard]] static bool belongsTo(const ForeignEvent& event, const ForeignEvent& partner) {
    const EventKind* kind = kindOf(partner.code);
    const bool isShot = kind != nullptr && kind->isShot;
    switch (event.code) {
    case EventCode::SA: return isShot && event.doer.team == partner.doer.team;
    case EventCode::SBS:
      return isShot && partner.code != EventCode::GFT && event.doer.team != partner.doer.team;
    case EventCode::SOR:
    case EventCode::SDR:
    case EventCode::XOR:
    case EventCode::XDR: return isShot;
    case EventCode::SST:
      return (partner.code == EventCode::STO || partner.code == EventCode::XTV) &&
             event.doer.team != partner.doer.team;
    default: return false;
    }
  }

  struct Jumper {
    Doer doer = {};
    bool hasWon = false;
  };
  LiveStatsNumbers& m_numbers;
  ForeignGame& m_game;
  std::map<int, std::pair<double, double>> m_places = {}; // by number of the shot's row, percent
  std::map<int, int> m_events = {};                       // by number of the row: place in the list
  std::vector<int> m_partners = {};                       // by place in the list: number of the partner's row
  std::vector<std::pair<int, Doer>> m_fouled = {};        // number of the foul's row, who drew it
  std::map<int, std::string> m_jumpBalls = {};            // whose jumpers were not met yet
  std::map<int, Jumper> m_jumpers = {};                   // who wait for the other one, by the row before
  const Kind* m_kind = nullptr;                           // of the row that is taken
  int m_period = 1;
  int m_centiseconds = 0;
};

const std::array<EventReading::Kind, EventReading::kKindCount>& EventReading::kinds() {
  static constexpr std::array<Kind, kKindCount> kKinds = {{
      {"2pt", &EventReading::takeShot, EventCode::GFG},
      {"3pt", &EventReading::takeShot, EventCode::GF3},
      {"freethrow", &EventReading::takeThrow, EventCode::GFT},
      {"rebound", &EventReading::takeRebound, EventCode::SDR, EventCode::XDR},
      {"assist", &EventReading::takePlain, EventCode::SA},
      {"block", &EventReading::takePlain, EventCode::SBS},
      {"steal", &EventReading::takePlain, EventCode::SST},
      {"turnover", &EventReading::takeTurnover, EventCode::STO, EventCode::XTV},
      {"foul", &EventReading::takeFoul},
      {"foulon", &EventReading::takeFouled},
      {"substitution", &EventReading::takeSubstitution},
      {"timeout", &EventReading::takeTimeOut},
      {"jumpball", &EventReading::takeJumpBall},
      {"period", &EventReading::takePeriod},
      {"game", &EventReading::takeGame},
  }};
  return kKinds;
}

} // namespace

void readLiveStatsEvents(const Json& file, LiveStatsNumbers& numbers, ForeignGame& game) {
  const EventReading reading(file, numbers, game);
}

} // namespace hooptab
