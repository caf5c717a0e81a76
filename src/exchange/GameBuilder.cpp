#include "exchange/GameBuilder.h"

#include "exchange/ClockSequence.h"
#include "exchange/ForeignRoster.h"
#include "exchange/LineUps.h"
#include "game/EventDetails.h"
#include "game/GameFile.h"
#include "game/PlayerIds.h"
#include "game/RuleSets.h"
#include "game/WallClock.h"
#include "storage/BatchText.h"
#include "storage/Module1.h"

#include <algorithm>
#include <map>
#include <optional>

namespace hooptab {

namespace {

constexpr int kCentisecondsPerMinute = 6000;
constexpr int kLatestClock = (kMostMinutes * 60 + 59) * 100;

// At which the clock stands: a whistle, or the ball that is to be thrown in or shot freely.
bool stopsTheClock(const ForeignEvent& event) {
  switch (event.code) {
  case EventCode::SPF:
  case EventCode::STF:
  case EventCode::XCF:
  case EventCode::XTO:
  case EventCode::XJB:
  case EventCode::GFT: return true;
  case EventCode::STO:
  case EventCode::XTV:
    return !event.detail.empty() && event.detail != "BADPASS" && event.detail != "HANDLING" &&
           event.detail != "OTHER";
  default: return false;
  }
}

// The lines of the periods, written event by event.
class Script {
 public:
  Script(const ForeignGame& game, const PerSide<ForeignRoster>& rosters)
      : m_game(game), m_lineUps(game),
        m_clock({game.teams[Side::Visitor].players.size(), game.teams[Side::Home].players.size()}) {
    for (const Side team : kSides) {
      m_jerseys[team] = &rosters[team].jerseys;
      for (const RosterPlayer& player : rosters[team].players)
        m_rosters[team].add(player);
    }
    beginPeriod(1);
    write(stopText("IN-", "IN-"));
  }

  void take(const ForeignEvent& event) {
    if (event.period < 1 || event.period > kLastPeriod)
      return;
    for (; m_period < event.period; beginPeriod(m_period + 1)) {
      if (!m_hasEnded)
        endPeriod(0); // what has a next period was played to the end
      flush();
    }
    if (event.period < m_period)
      return takeLate(event);
    switch (event.kind) {
    case ForeignKind::In:
    case ForeignKind::Out: substitute(event); break;
    case ForeignKind::PeriodStart: break;
    case ForeignKind::PeriodEnd: endPeriod(event.centiseconds); break;
    case ForeignKind::Event: record(event); break;
    }
  }
  void finish() { endPeriod(std::nullopt); }

  void writeTo(ProfileBatch& batch, const std::string& id) const {
    if (!m_wallClock.empty()) {
      std::vector<std::pair<std::string, std::string>> times = {{std::string(kWallClockOwner), id}};
      for (const auto& [number, time] : m_wallClock)
        times.emplace_back(std::to_string(number), std::to_string(time));
      batch.setSectionLines(std::string(kWallClockSection), std::move(times));
    }
    for (const auto& [period, lines] : m_lines)
      batch.setSectionLines(periodSection(period), lines);
  }
  [[nodiscard]] int nextNumber() const { return m_number; }
  [[nodiscard]] std::vector<ExchangeNote> takeNotes() { return m_lineUps.takeNotes(); }

 private:
  void beginPeriod(int period) {
    const bool isOvertime = period > m_game.periods;
    const int minutes = isOvertime ? m_game.overtimeMinutes : m_game.minutes;
    m_period = period;
    m_centiseconds = std::clamp(minutes * kCentisecondsPerMinute, 0, kLatestClock);
    m_clock.beginPeriod(m_centiseconds);
    m_seconds = m_centiseconds / 100;
    m_stoppedAt = m_seconds;
    m_hasEnded = false;
  }
  // At the clock of its end, else where its last event was.
  void endPeriod(std::optional<int> centiseconds) {
    flush();
    if (centiseconds)
      advance(std::clamp(*centiseconds, 0, kLatestClock));
    if (m_isRunning)
      stop();
    m_hasEnded = true;
  }

  // What the file has behind the end of its period stands before that period's last stop; whoever comes and
  // goes so late does so now.
  void takeLate(const ForeignEvent& event) {
    if (event.kind == ForeignKind::In || event.kind == ForeignKind::Out) {
      ForeignEvent now = event;
      now.centiseconds = m_centiseconds;
      substitute(now);
    } else if (event.kind == ForeignKind::Event) {
      auto& lines = m_lines[event.period];
      const bool isStopped = !lines.empty() && lines.back().second.find(",ARRET") != std::string::npos;
      const int seconds = std::clamp(event.centiseconds, 0, kLatestClock) / 100;
      lines.emplace(lines.end() - (isStopped ? 1 : 0), std::to_string(m_number++),
                    Module1::clockText(seconds) + textOf(event));
    }
  }
  // Events come to that clock: where it is behind, it was started before.
  void advance(int centiseconds) {
    const bool runs = centiseconds < m_centiseconds;
    if (runs && !m_isRunning)
      start();
    m_seconds = m_clock.seconds(centiseconds);
    m_centiseconds = centiseconds;
  }
  void start() {
    if (!m_hasLineUps)
      stop(); // with those who begin
    m_lineUps.checkAt(m_period, m_centiseconds);
    m_seconds = std::min(m_seconds, m_stoppedAt); // whatever clocks it was given while it stood
    write(startText());
    m_isRunning = true;
  }
  void stop() {
    m_hasLineUps = true;
    m_isRunning = false;
    m_stoppedAt = std::min(m_stoppedAt, m_seconds);
    write(stopText(list(Side::Visitor), list(Side::Home)));
  }
  [[nodiscard]] std::string list(Side team) const {
    const auto side = team;
    std::vector<std::string> listed;
    for (const int player : m_lineUps.onCourt(team))
      listed.push_back(m_rosters[side].listedJersey((*m_jerseys[side])[static_cast<std::size_t>(player)]));
    return Module1::onCourtList(std::move(listed));
  }

  // Those of one clock are one change of both teams.
  void substitute(const ForeignEvent& event) {
    if (!event.doer.isPlayer())
      return;
    const int centiseconds = std::clamp(event.centiseconds, 0, kLatestClock);
    if (!m_pending.empty() && m_pending.back().centiseconds != centiseconds)
      flush();
    m_pending.push_back(event);
    m_pending.back().centiseconds = centiseconds;
  }
  void flush() {
    if (m_pending.empty())
      return;
    const int centiseconds = m_pending.front().centiseconds;
    if (centiseconds < m_centiseconds && !m_isRunning)
      start();
    std::vector<ClockSequence::Change> changes;
    for (const ForeignEvent& each : m_pending) {
      const bool comes = each.kind == ForeignKind::In;
      if (m_lineUps.isOnCourt(each.doer) != comes)
        changes.push_back({*each.doer.team, each.doer.player, comes});
      m_lineUps.change(each);
    }
    m_seconds = m_clock.seconds(centiseconds, changes);
    m_centiseconds = centiseconds;
    m_pending.clear();
    stop();
  }
  // Whether he has left at that clock, by changes that are not written yet.
  [[nodiscard]] bool isLeaving(const Doer& player, int centiseconds) const {
    return std::ranges::any_of(m_pending, [&](const ForeignEvent& each) {
      return each.kind == ForeignKind::Out && each.doer == player && each.centiseconds == centiseconds;
    });
  }

  void record(const ForeignEvent& event) {
    const int centiseconds = std::clamp(event.centiseconds, 0, kLatestClock);
    if (!isLeaving(event.doer, centiseconds))
      flush();
    advance(centiseconds);
    if (!m_hasLineUps)
      stop();
    if (m_isRunning && stopsTheClock(event))
      stop();
    if (event.wallClock > 0)
      m_wallClock.emplace(m_number, event.wallClock);
    write(textOf(event));
  }
  void write(const std::string& text) {
    m_lines[m_period].emplace_back(std::to_string(m_number++), Module1::clockText(m_seconds) + text);
  }

  [[nodiscard]] const std::string& jerseyOf(const Doer& player) const {
    return (*m_jerseys[*player.team])[static_cast<std::size_t>(player.player)];
  }
  [[nodiscard]] std::string referenceTo(const Doer& player) const {
    return std::to_string(numberOf(*player.team)) + '-' + jerseyOf(player);
  }
  // What stands behind the clock.
  [[nodiscard]] std::string textOf(const ForeignEvent& event) const {
    std::string text;
    if (event.code == EventCode::XJB)
      text = ",XJB," + referenceTo(event.doer) + ',' + referenceTo(event.other);
    else if (const EventKind* kind = kindOf(event.code); kind != nullptr && kind->isOfTeam)
      text = teamEventText(event.code, event.doer.team);
    else
      text = eventText(event.code, event.isMade, *event.doer.team, jerseyOf(event.doer), event.place);
    const auto add = [&](std::string_view key, const std::string& value) {
      if (!value.empty())
        text = withDetail(text, key, value);
    };
    add(detail_key::kKind, event.detail);
    const bool isOfOpponent = event.other.isPlayer() && event.other.team != event.doer.team;
    if (isOfOpponent && event.code != EventCode::XJB)
      add(event.code == EventCode::SBS ? detail_key::kShooter : detail_key::kDrawnBy,
          referenceTo(event.other));
    if (event.freeThrows >= 0)
      add(detail_key::kFreeThrows, std::to_string(event.freeThrows));
    if (event.isFastBreak)
      add(detail_key::kFastBreak, "F");
    if (event.numberOfThrow > 0)
      add(detail_key::kNumberOfThrow,
          std::to_string(event.numberOfThrow) + '/' + std::to_string(event.ofThrows));
    if (event.wonBy)
      add(detail_key::kWonBy, std::to_string(numberOf(*event.wonBy)));
    return text;
  }

  const ForeignGame& m_game;
  LineUps m_lineUps;
  ClockSequence m_clock;
  PerSide<Roster> m_rosters = {};
  PerSide<const std::vector<std::string>*> m_jerseys = {};
  std::map<int, std::vector<std::pair<std::string, std::string>>> m_lines;
  std::map<int, std::int64_t> m_wallClock; // by event
  std::vector<ForeignEvent> m_pending;     // substitutions of one clock
  int m_number = 1;
  int m_period = 0;
  int m_centiseconds = 0; // where the clock is
  int m_seconds = 0;
  int m_stoppedAt = 0; // the lowest clock of the period at which it was stopped
  bool m_isRunning = false;
  bool m_hasEnded = false;   // the period
  bool m_hasLineUps = false; // those who began were written
};

GameDetails detailsOf(const ForeignGame& game, const std::string& id) {
  constexpr PerSide<std::uint32_t> kColours = {8438015, 16744448};
  const RuleSet* rules = ruleSetOf(game.ruleSet);
  const RuleSet& usual = rules != nullptr ? *rules : kRuleSets.front();
  GameDetails details;
  details.version = GameFile::kVersion;
  details.id = id;
  details.date = game.date;
  details.place = game.place;
  details.competition = game.competition;
  details.round = game.round;
  details.referees = game.referees;
  details.attendance = game.attendance;
  details.ruleSet = game.ruleSet;
  details.level = RecordingLevel::League;
  details.periods = game.periods;
  details.minutesPerPeriod = std::clamp(game.minutes, 0, kMostMinutes);
  details.bonus = usual.bonus;
  details.personalFoulLimit = usual.personalFouls;
  details.technicalFoulLimit = usual.technicalFouls;
  constexpr int kSeason = 2;
  details.type = kSeason;
  for (const Side team : kSides) {
    const ForeignTeam& foreign = game.teams[team];
    details.teamColour[team] = kColours[team];
    details.name[team] = foreign.name;
    details.abbreviation[team] = foreign.abbreviation;
    details.coach[team] = foreign.coach;
  }
  details.statisticLabel[0] = "U1-";
  details.statisticLabel[1] = "U2-";
  return details;
}

void setDetail(ProfileBatch& batch, std::string_view key, int value) {
  batch.set(std::string(kDetailsSection), std::string(key), std::to_string(value));
}

// What a new game has not: it is written while a game is recorded, or by no window at all.
void writeFurtherDetails(const ForeignGame& game, int nextNumber, ProfileBatch& batch) {
  setDetail(batch, "EVENUM", nextNumber);
  const bool hasOvertime = std::ranges::any_of(
      game.events, [&](const ForeignEvent& event) { return event.period > game.periods; });
  if (hasOvertime)
    setDetail(batch, "DUREEPROL", game.overtimeMinutes);
  const GameDetails usual;
  if (game.threePointRadius != usual.threePointRadius || game.threePointCorner != usual.threePointCorner) {
    setDetail(batch, "LIGNE3", game.threePointRadius);
    setDetail(batch, "LIGNE3COIN", game.threePointCorner);
  }
  if (game.isFinished)
    setDetail(batch, "TERMINE", 1);
}

void writeTeam(const ForeignGame& game, const ForeignRoster& roster, Side team, ProfileBatch& batch) {
  const ForeignTeam& foreign = game.teams[team];
  for (std::size_t i = 0; i < foreign.players.size(); ++i) {
    if (!foreign.players[i].id.empty())
      static_cast<void>(planPlayerId({}, team, roster.jerseys[i], {{}, foreign.players[i].id}, batch));
  }
  const std::string section = rosterSection(team);
  std::vector<std::pair<std::string, std::string>> players;
  for (const RosterPlayer& player : roster.players)
    players.emplace_back(player.jersey, playerValue(player));
  if (players.empty()) // the team itself is the one player
    players.emplace_back("0", "9," + foreign.abbreviation);
  batch.setSectionLines(section, std::move(players));
}

} // namespace

BuiltGame buildGame(const ForeignGame& game, const std::string& id) {
  BuiltGame built;
  PerSide<ForeignRoster> rosters = {rosterOf(game, Side::Visitor), rosterOf(game, Side::Home)};
  Script script(game, rosters);
  for (const ForeignEvent& event : game.events)
    script.take(event);
  script.finish();

  GameDetails details = detailsOf(game, id);
  for (const Side team : kSides) {
    const std::vector<ForeignPlayer>& players = game.teams[team].players;
    const auto captain = std::ranges::find_if(players, &ForeignPlayer::isCaptain);
    if (captain != players.end())
      details.captain[team] = rosters[team].jerseys[static_cast<std::size_t>(captain - players.begin())];
  }
  ProfileBatch batch;
  writeNewDetails(details, batch);
  writeFurtherDetails(game, script.nextNumber(), batch);
  for (const Side team : kSides)
    writeTeam(game, rosters[team], team, batch);
  script.writeTo(batch, id);
  built.text = withBatch(ProfileText(), batch);

  built.notes = game.notes;
  for (const Side team : kSides) {
    built.jerseys[team] = rosters[team].jerseys;
    built.notes.insert(built.notes.end(), rosters[team].notes.begin(), rosters[team].notes.end());
  }
  for (ExchangeNote& note : script.takeNotes())
    built.notes.push_back(std::move(note));
  return built;
}

} // namespace hooptab
