#include "exchange/GameReading.h"

#include "exchange/OwnCount.h"
#include "game/EventDetails.h"
#include "game/PlayerIds.h"
#include "game/WallClock.h"
#include "insight/ShotOrigins.h"
#include "storage/Module1.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace hooptab {

namespace {

constexpr int kHundred = 100;

class Reading {
 public:
  Reading(const CountedGame& counted, const ProfileText& text)
      : m_own(counted.game), m_count(counted.game), m_times(readWallClock(text, counted.game.details.id)),
        m_origins(shotOriginsOf(counted.game)) {
    readDetails();
    for (const Side team : kSides)
      readTeam(team, readPlayerIds(text, team));
    std::size_t place = 0;
    for (const GameEvent& event : m_own.events) {
      if (!event.isDeleted && event.isUnderstood)
        take(event, place);
      ++place;
    }
    endPeriod(m_own.details.isFinished);
  }
  ForeignGame takeGame() { return std::move(m_game); }

 private:
  void readDetails() {
    const GameDetails& details = m_own.details;
    m_game.id = details.id;
    m_game.date = details.date;
    m_game.place = details.place;
    m_game.competition = details.competition;
    m_game.round = details.round;
    m_game.referees = details.referees;
    m_game.attendance = details.attendance;
    m_game.ruleSet = details.ruleSet;
    m_game.periods = details.periods;
    m_game.minutes = details.minutesPerPeriod;
    m_game.overtimeMinutes = details.overtimeMinutes > 0 ? details.overtimeMinutes : m_game.overtimeMinutes;
    m_game.threePointRadius = details.threePointRadius;
    m_game.threePointCorner = details.threePointCorner;
    m_game.isFinished = details.isFinished;
  }
  void readTeam(Side team, const PlayerIds& ids) {
    const GameDetails& details = m_own.details;
    ForeignTeam& foreign = m_game.teams[team];
    foreign.name = details.name[team];
    foreign.abbreviation = details.abbreviation[team];
    foreign.coach = details.coach[team];
    const Roster& roster = m_own.roster[team];
    for (const RosterPlayer& player : roster.players()) {
      const auto id = ids.find(player.jersey);
      foreign.players.push_back({id == ids.end() ? std::string() : id->second.foreignId, player.jersey,
                                 player.name, player.position});
      const auto entry = static_cast<std::size_t>(roster.entryOf(player.jersey));
      if (entry > 0)
        foreign.players.back().official = officialOf(m_count.of(team, entry));
    }
    const int captain = placeOf(team, details.captain[team]);
    if (captain >= 0)
      foreign.players[static_cast<std::size_t>(captain)].isCaptain = true;
    foreign.official = officialOf(m_count.ofTeam(team));
    foreign.official["points"] = {m_count.state().points(team)};
    for (const NamedRowNumber& each : numbersOfTeamRows())
      foreign.official[std::string(each.name)] = {each.value(m_count.state().teamRows[team])};
    const int last = m_own.events.isEmpty() ? 0 : m_own.events[m_own.events.size() - 1].period;
    for (int period = 1; period <= std::max(last, m_game.periods); ++period)
      foreign.pointsOfPeriod.push_back(m_count.state().periods[team][GameState::periodRow(period)].points);
  }
  static OfficialNumbers officialOf(const OwnNumbers& own) {
    OfficialNumbers official;
    for (const NamedNumber& each : numbersOfPlayers())
      official[std::string(each.name)] = {each.value(own), each.name == "seconds" ? 1 : 0};
    return official;
  }

  // As an event's line finds its player; -1: nobody.
  [[nodiscard]] int placeOf(Side team, std::string_view jersey) const {
    const Roster& roster = m_own.roster[team];
    const std::vector<RosterPlayer>& players = roster.players();
    if (jersey.empty())
      return -1;
    if (const int entry = roster.entryOf(jersey); entry > 0)
      return entry - 1;
    const auto found = std::ranges::find_if(players, [&](const RosterPlayer& player) {
      return player.jersey == jersey || Roster::areOneNumber(player.jersey, jersey);
    });
    return found == players.end() ? -1 : static_cast<int>(found - players.begin());
  }
  // Who is in no roster becomes one of the team.
  Doer doerOf(const PlayerReference& player) {
    if (!player.team || player.jersey.empty())
      return {player.team, -1};
    const int place = placeOf(*player.team, player.jersey);
    return {player.team, place >= 0 ? place : strangerOf(*player.team, player.jersey)};
  }
  int strangerOf(Side team, std::string_view jersey) {
    std::vector<ForeignPlayer>& players = m_game.teams[team].players;
    const auto place = std::ranges::find(players, jersey, &ForeignPlayer::jersey) - players.begin();
    if (place == std::ssize(players))
      players.push_back({{}, std::string(jersey)});
    return static_cast<int>(place);
  }

  void take(const GameEvent& event, std::size_t place) {
    if (event.period != m_period) {
      endPeriod(true);
      m_period = event.period;
      add(ForeignKind::PeriodStart, event.clockSeconds);
    }
    m_clockSeconds = event.clockSeconds;
    if (event.code == EventCode::ARRET)
      changeLines(event);
    else if (event.code == EventCode::DEPART)
      m_hasStarted = true;
    else
      record(event, place);
  }
  void endPeriod(bool isPlayedOut) {
    if (m_period > 0 && (isPlayedOut || m_clockSeconds == 0))
      add(ForeignKind::PeriodEnd, m_clockSeconds);
  }
  ForeignEvent& add(ForeignKind kind, int clockSeconds) {
    ForeignEvent& event = m_game.events.emplace_back();
    event.kind = kind;
    event.period = m_period;
    event.centiseconds = clockSeconds * kHundred;
    return event;
  }

  // Until the clock starts for the first time, those on court are those who begin.
  void changeLines(const GameEvent& event) {
    for (const Side team : kSides) {
      std::set<int> now;
      for (const std::string_view jersey : Module1::countedJerseys(event.onCourt(team))) {
        const int entry = m_own.roster[team].entryOfListed(jersey);
        now.insert(entry > 0 ? entry - 1 : doerOf({team, jersey}).player);
      }
      if (m_hasStarted)
        substitute(event, team, now);
      else
        setStarters(m_game.teams[team].players, now);
      m_onCourt[team] = std::move(now);
    }
  }
  static void setStarters(std::vector<ForeignPlayer>& players, const std::set<int>& starters) {
    for (std::size_t i = 0; i < players.size(); ++i)
      players[i].isStarter = starters.contains(static_cast<int>(i));
  }
  void substitute(const GameEvent& event, Side team, const std::set<int>& now) {
    const std::set<int>& before = m_onCourt[team];
    const auto addAll = [&](ForeignKind kind, const std::set<int>& players, const std::set<int>& without) {
      for (const int player : players) {
        if (!without.contains(player))
          add(kind, event.clockSeconds).doer = {team, player};
      }
    };
    addAll(ForeignKind::Out, before, now);
    addAll(ForeignKind::In, now, before);
  }

  void record(const GameEvent& own, std::size_t place) {
    m_hasStarted = true;
    ForeignEvent event;
    event.code = own.code;
    event.isMade = own.isMade;
    event.period = m_period;
    event.centiseconds = own.clockSeconds * kHundred;
    event.doer = doerOf(own.code == EventCode::XJB ? own.jumper(Side::Visitor) : own.player);
    if (own.code == EventCode::XJB)
      event.other = doerOf(own.jumper(Side::Home));
    readDetailsOf(own, event);
    event.belongsTo = partnerOf(event);
    if (own.isShot()) {
      const OriginOfShot& origin = m_origins[place];
      event.origin = {origin.isInPaint, origin.isSecondChance, origin.isFromTurnover};
    }
    if (const auto time = m_times.find(own.number); time != m_times.end())
      event.wallClock = time->second;
    m_game.events.push_back(std::move(event));
  }
  void readDetailsOf(const GameEvent& own, ForeignEvent& event) {
    const auto numberAt = [](std::string_view text) { return Module1::wholeNumber(text); };
    event.detail = own.detail(detail_key::kKind).value_or("");
    event.isFastBreak = own.detail(detail_key::kFastBreak) == "F";
    event.freeThrows = numberAt(own.detail(detail_key::kFreeThrows).value_or(""));
    for (const std::string_view key : {detail_key::kDrawnBy, detail_key::kShooter}) {
      if (const auto other = PlayerReference::read(own.detail(key).value_or("")))
        event.other = doerOf(*other);
    }
    if (const auto thrown = own.detail(detail_key::kNumberOfThrow)) {
      event.numberOfThrow = std::max(numberAt(Module1::field(*thrown, 1, '/')), 0);
      event.ofThrows = std::max(numberAt(Module1::field(*thrown, 2, '/')), 0);
    }
    if (const auto winner = own.detail(detail_key::kWonBy))
      event.wonBy = winner->size() == 1 ? sideOf(Module1::wholeNumber(*winner)) : std::nullopt;
    if (own.hasPlace)
      event.place = {own.x, own.y};
  }
  // What it goes with, by the order of the events: nothing in the file says it.
  [[nodiscard]] int partnerOf(const ForeignEvent& event) const {
    const std::optional<Side> team = event.doer.team;
    switch (event.code) {
    case EventCode::SA:
      return lastOf(
          [&](const ForeignEvent& each) { return isShot(each) && each.isMade && each.doer.team == team; });
    case EventCode::SBS:
      return lastOf(
          [&](const ForeignEvent& each) { return isShot(each) && !each.isMade && each.doer.team != team; });
    case EventCode::SOR:
    case EventCode::SDR:
    case EventCode::XOR:
    case EventCode::XDR:
      return lastOf([&](const ForeignEvent& each) { return isShot(each) && !each.isMade; });
    case EventCode::SST:
      return lastOf([&](const ForeignEvent& each) {
        return (each.code == EventCode::STO || each.code == EventCode::XTV) && each.doer.team != team;
      });
    case EventCode::GFT:
      return lastOf([&](const ForeignEvent& each) { return isFoul(each.code) && each.doer.team != team; });
    default: return -1;
    }
  }
  static bool isShot(const ForeignEvent& event) { return event.code >= EventCode::GFG; }
  template <class Condition>
  [[nodiscard]] int lastOf(Condition holds) const {
    constexpr int kFarthest = 12; // a partner stands near
    const int size = static_cast<int>(m_game.events.size());
    for (int i = size - 1; i >= std::max(0, size - kFarthest); --i) {
      const ForeignEvent& each = m_game.events[static_cast<std::size_t>(i)];
      if (each.kind == ForeignKind::Event && each.period == m_period && holds(each))
        return i;
    }
    return -1;
  }

  const Game& m_own;
  OwnCount m_count;
  std::map<int, std::int64_t> m_times;
  std::vector<OriginOfShot> m_origins; // by place in our own list
  ForeignGame m_game;
  PerSide<std::set<int>> m_onCourt = {};
  int m_period = 0;
  int m_clockSeconds = 0;
  bool m_hasStarted = false;
};

} // namespace

ForeignGame foreignGameOf(const CountedGame& game, const ProfileText& text) {
  return Reading(game, text).takeGame();
}

} // namespace hooptab
