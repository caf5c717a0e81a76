#include "extracts/TableColumns.h"

#include "court/CourtGeometry.h"
#include "game/EventDetails.h"
#include "game/PlayerLookup.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <optional>
#include <system_error>

namespace hooptab::tables {

namespace {

// --- Cells

std::string number(int value) {
  return std::to_string(value);
}
std::string flag(bool isSet) {
  return isSet ? "1" : "0";
}
// With a point in every language. Without a sign before zero.
std::string decimal(double value, int decimals) {
  const double unit = std::pow(10.0, decimals);
  char text[32];
  const auto end = std::to_chars(std::begin(text), std::end(text), std::round(value * unit) / unit + 0.0,
                                 std::chars_format::fixed, decimals);
  return end.ec == std::errc() ? std::string(std::begin(text), end.ptr) : std::string();
}
std::string side(std::optional<Side> team) {
  return !team ? "" : team == Side::Visitor ? "visitor" : "home";
}
std::string abbreviation(const GameRow& row, std::optional<Side> team) {
  return team ? row.game().details.abbreviation[*team] : std::string();
}
std::string jerseys(const std::vector<std::string>& onCourt) {
  std::string all;
  for (const std::string& jersey : onCourt)
    all.append(all.empty() ? "" : " ").append(jersey);
  return all;
}
// As the roster has it, where it has the player.
std::string jersey(const GameRow& row, const PlayerReference& who) {
  if (!who.team)
    return {};
  const RosterPlayer* const player = findPlayer(row.game().roster[*who.team], who.jersey);
  return player != nullptr ? player->jersey : std::string(who.jersey);
}
std::string nameOf(const GameRow& row, const PlayerReference& who) {
  const RosterPlayer* const player =
      who.team ? findPlayer(row.game().roster[*who.team], who.jersey) : nullptr;
  return player != nullptr ? player->name : std::string();
}
std::string detail(const GameEvent& event, std::string_view key) {
  return std::string(event.detail(key).value_or(""));
}

// --- Words

std::string typeWord(int type) {
  constexpr std::array<std::string_view, 6> kWords = {"practice", "preseason",  "season",
                                                      "playoff",  "tournament", "exhibition"};
  const bool isKnown = type >= 0 && type < static_cast<int>(kWords.size());
  return std::string(isKnown ? kWords[static_cast<std::size_t>(type)] : "other");
}

std::string positionWord(int position) {
  constexpr std::array<std::string_view, 3> kWords = {"centre", "forward", "guard"};
  const bool isKnown = position >= 0 && position < static_cast<int>(kWords.size());
  return std::string(isKnown ? kWords[static_cast<std::size_t>(position)] : "");
}

struct EventWord {
  EventCode code;
  std::string_view word;
};
constexpr EventWord kEventWords[] = {{EventCode::DEPART, "clock_start"},
                                     {EventCode::ARRET, "clock_stop"},
                                     {EventCode::SA, "assist"},
                                     {EventCode::SBS, "block"},
                                     {EventCode::SDR, "defensive_rebound"},
                                     {EventCode::SOR, "offensive_rebound"},
                                     {EventCode::SPF, "personal_foul"},
                                     {EventCode::STF, "technical_foul"},
                                     {EventCode::SST, "steal"},
                                     {EventCode::STO, "turnover"},
                                     {EventCode::SU1, "other_1"},
                                     {EventCode::SU2, "other_2"},
                                     {EventCode::XTO, "time_out"},
                                     {EventCode::XOR, "team_offensive_rebound"},
                                     {EventCode::XDR, "team_defensive_rebound"},
                                     {EventCode::XTV, "team_turnover"},
                                     {EventCode::XCF, "bench_technical_foul"},
                                     {EventCode::XJB, "jump_ball"},
                                     {EventCode::XAR, "possession_arrow"},
                                     {EventCode::GFG, "two_pointer"},
                                     {EventCode::GF3, "three_pointer"},
                                     {EventCode::GFT, "free_throw"},
                                     {EventCode::GLG, "left_layup"},
                                     {EventCode::GLD, "right_layup"},
                                     {EventCode::GPB, "put_back"},
                                     {EventCode::GDK, "dunk"}};

static_assert(std::size(kEventWords) == static_cast<std::size_t>(EventCode::GDK), "one for each code");

std::string wordOf(const GameEvent& event) {
  return std::string(std::ranges::find(kEventWords, event.code, &EventWord::code)->word);
}
std::string codeOf(const GameEvent& event) {
  if (event.isClock())
    return event.code == EventCode::DEPART ? "DEPART" : "ARRET";
  return std::string(event.kind()->text) + (event.isShot() && !event.isMade ? "A" : "");
}

std::string zoneWord(court::ChartZone zone) {
  constexpr std::array<std::string_view, court::kChartZoneCount> kWords = {
      "under_basket", "paint", "mid_range_left", "mid_range_centre", "mid_range_right", "left_corner",
      "left_wing",    "top",   "right_wing",     "right_corner"};
  return std::string(kWords[static_cast<std::size_t>(zone)]);
}

// --- Details of an event

// Who else took part: the other team's who drew a foul, or whose shot was blocked; of a jump ball the home
// side's.
PlayerReference otherOf(const GameEvent& event) {
  if (event.code == EventCode::XJB)
    return event.jumper(Side::Home);
  const std::string_view key = event.code == EventCode::SBS ? detail_key::kShooter
                               : isFoul(event.code)         ? detail_key::kDrawnBy
                                                            : std::string_view();
  if (key.empty())
    return {};
  return PlayerReference::read(event.detail(key).value_or("")).value_or(PlayerReference());
}
PlayerReference doerOf(const GameEvent& event) {
  return event.code == EventCode::XJB ? event.jumper(Side::Visitor)
         : event.isOfPlayer()         ? event.player
                                      : PlayerReference();
}
std::optional<Side> teamOf(const GameEvent& event) {
  return event.isClock() ? std::nullopt : event.player.team;
}
std::string wallClock(const EventRow& row) {
  const auto found = row.game.source.wallClock.find(row.event.number);
  return found == row.game.source.wallClock.end() ? std::string() : std::to_string(found->second);
}
std::string place(const GameEvent& event, float GameEvent::*coordinate) {
  if (!event.hasPlace)
    return {};
  const auto value = static_cast<double>(event.*coordinate);
  return decimal(value, value == std::round(value) ? 0 : 2);
}

// --- Places of shots

// Metres from the ring: out into the court, and to the shooter's right who faces the basket.
struct FromRing {
  double out = 0;
  double right = 0;
};
FromRing fromRing(const GameEvent& shot) {
  return {(static_cast<double>(shot.x) - court::kBasketX) * court::kMetresPerUnit,
          (court::kBasketY - static_cast<double>(shot.y)) * court::kMetresPerUnit};
}

template <double (*metres)(const FromRing&)>
std::string metresCell(const ShotRow& row) {
  return row.of.event.hasPlace ? decimal(metres(fromRing(row.of.event)), 2) : std::string();
}

std::string jerseyAt(const ShotRow& row, const std::optional<std::size_t>& place) {
  return place ? jersey(row.of.game, row.of.game.game().events[*place].player) : std::string();
}

constexpr ShotKinds kThree = shotKinds({EventCode::GF3});
constexpr ShotKinds kFree = shotKinds({EventCode::GFT});
constexpr ShotKinds kTwo = kAllShotKinds & ~(kThree | kFree);

template <ShotKinds kinds>
std::string madeCell(const PlayerRow& row) {
  return row.isCounted ? number(row.numbers.made(kinds)) : std::string();
}
template <ShotKinds kinds>
std::string attemptedCell(const PlayerRow& row) {
  return row.isCounted ? number(row.numbers.attempted(kinds)) : std::string();
}
template <Counter counter>
std::string countCell(const PlayerRow& row) {
  return row.isCounted ? number(row.numbers.counters[counter]) : std::string();
}
std::string ifPlayer(const PlayerRow& row, const std::string& cell) {
  return row.kind == PlayerRow::Kind::Player ? cell : std::string();
}
const PlayerId& idOf(const PlayerRow& row) {
  static const PlayerId kNone;
  const PlayerIds& ids = row.game.source.ids[row.team];
  const auto found = row.player == nullptr ? ids.end() : ids.find(row.player->jersey);
  return found == ids.end() ? kNone : found->second;
}

template <Side team>
std::string pointsCell(const GameRow& row) {
  return number(row.source.counted.state.points(team));
}
template <Side team>
std::string possessionsCell(const GameRow& row) {
  return row.isLive() ? number(row.walk.possessions[team]) : std::string();
}

std::string clockCell(const GameRow& row, int seconds) {
  return row.hasTime() ? Module1::clockText(seconds) : std::string();
}
std::string secondsCell(const GameRow& row, int seconds) {
  return row.hasTime() ? number(seconds) : std::string();
}
int elapsedAtEnd(const GameRow& row) {
  return row.walk.events.empty() ? 0 : row.walk.events.back().elapsed;
}

constexpr Column<GameRow> kGames[] = {
    {"game", [](const GameRow& row) { return row.key; }},
    {"file", [](const GameRow& row) { return fileNameOf(row.game()); }},
    {"date", [](const GameRow& row) { return row.game().details.date; }},
    {"type", [](const GameRow& row) { return typeWord(row.game().details.type); }},
    {"competition", [](const GameRow& row) { return row.game().details.competition; }},
    {"round", [](const GameRow& row) { return row.game().details.round; }},
    {"place", [](const GameRow& row) { return row.game().details.place; }},
    {"referees", [](const GameRow& row) { return row.game().details.referees; }},
    {"attendance", [](const GameRow& row) { return row.game().details.attendance; }},
    {"statistician", [](const GameRow& row) { return row.game().details.statistician; }},
    {"recorded", [](const GameRow& row) { return std::string(row.isLive() ? "live" : "totals"); }},
    {"finished", [](const GameRow& row) { return flag(row.game().details.isFinished); }},
    {"rules", [](const GameRow& row) { return row.game().details.ruleSet; }},
    {"periods", [](const GameRow& row) { return number(row.game().details.periods); }},
    {"period_minutes", [](const GameRow& row) { return number(row.game().details.minutesPerPeriod); }},
    {"last_period",
     [](const GameRow& row) {
       return row.isLive() ? number(row.source.counted.state.period) : std::string();
     }},
    {"seconds", [](const GameRow& row) { return secondsCell(row, elapsedAtEnd(row)); }},
    {"visitor", [](const GameRow& row) { return row.game().details.abbreviation[Side::Visitor]; }},
    {"visitor_name", [](const GameRow& row) { return row.game().details.name[Side::Visitor]; }},
    {"visitor_category", [](const GameRow& row) { return row.game().details.category[Side::Visitor]; }},
    {"visitor_coach", [](const GameRow& row) { return row.game().details.coach[Side::Visitor]; }},
    {"visitor_points", pointsCell<Side::Visitor>},
    {"visitor_possessions", possessionsCell<Side::Visitor>},
    {"home", [](const GameRow& row) { return row.game().details.abbreviation[Side::Home]; }},
    {"home_name", [](const GameRow& row) { return row.game().details.name[Side::Home]; }},
    {"home_category", [](const GameRow& row) { return row.game().details.category[Side::Home]; }},
    {"home_coach", [](const GameRow& row) { return row.game().details.coach[Side::Home]; }},
    {"home_points", pointsCell<Side::Home>},
    {"home_possessions", possessionsCell<Side::Home>},
    {"notes", [](const GameRow& row) { return row.game().details.notes; }},
};

constexpr Column<PlayerRow> kPlayers[] = {
    {"game", [](const PlayerRow& row) { return row.game.key; }},
    {"side", [](const PlayerRow& row) { return side(row.team); }},
    {"team", [](const PlayerRow& row) { return abbreviation(row.game, row.team); }},
    {"row",
     [](const PlayerRow& row) {
       return std::string(row.kind == PlayerRow::Kind::Player ? "player"
                          : row.kind == PlayerRow::Kind::Team ? "team"
                                                              : "others");
     }},
    {"jersey",
     [](const PlayerRow& row) { return row.player != nullptr ? row.player->jersey : std::string(); }},
    {"name", [](const PlayerRow& row) { return row.player != nullptr ? row.player->name : std::string(); }},
    {"position",
     [](const PlayerRow& row) {
       return row.player != nullptr ? positionWord(row.player->position) : std::string();
     }},
    {"licence", [](const PlayerRow& row) { return idOf(row).licence; }},
    {"foreign_id", [](const PlayerRow& row) { return idOf(row).foreignId; }},
    {"starter", [](const PlayerRow& row) { return ifPlayer(row, flag(row.isStarter)); }},
    {"played",
     [](const PlayerRow& row) {
       return row.isCounted ? ifPlayer(row, flag(row.wasOnCourt)) : std::string();
     }},
    {"seconds",
     [](const PlayerRow& row) {
       return row.isCounted ? ifPlayer(row, secondsCell(row.game, row.numbers.seconds)) : std::string();
     }},
    {"points",
     [](const PlayerRow& row) { return row.isCounted ? number(row.numbers.points()) : std::string(); }},
    {"fg2_made", madeCell<kTwo>},
    {"fg2_attempted", attemptedCell<kTwo>},
    {"fg3_made", madeCell<kThree>},
    {"fg3_attempted", attemptedCell<kThree>},
    {"ft_made", madeCell<kFree>},
    {"ft_attempted", attemptedCell<kFree>},
    {"offensive_rebounds", countCell<Counter::OR>},
    {"defensive_rebounds", countCell<Counter::DR>},
    {"assists", countCell<Counter::Ast>},
    {"steals", countCell<Counter::ST>},
    {"blocks", countCell<Counter::BS>},
    {"turnovers", countCell<Counter::TO>},
    {"personal_fouls", countCell<Counter::PF>},
    {"technical_fouls", countCell<Counter::TF>},
    {"fouls_drawn",
     [](const PlayerRow& row) { return row.isCounted ? number(row.extras.foulsDrawn) : std::string(); }},
    {"blocks_against",
     [](const PlayerRow& row) { return row.isCounted ? number(row.extras.blocksAgainst) : std::string(); }},
    {"other_1", countCell<Counter::S1>},
    {"other_2", countCell<Counter::S2>},
    {"plus_minus",
     [](const PlayerRow& row) {
       return row.game.isLive() ? ifPlayer(row, number(row.plusMinus)) : std::string();
     }},
};

constexpr Column<EventRow> kEvents[] = {
    {"game", [](const EventRow& row) { return row.game.key; }},
    {"event", [](const EventRow& row) { return number(row.event.number); }},
    {"row",
     [](const EventRow& row) {
       return number(static_cast<int>(&row.walked - row.game.walk.events.data()) + 1);
     }},
    {"period",
     [](const EventRow& row) { return row.game.isLive() ? number(row.event.period) : std::string(); }},
    {"clock", [](const EventRow& row) { return clockCell(row.game, row.event.clockSeconds); }},
    {"clock_seconds", [](const EventRow& row) { return secondsCell(row.game, row.event.clockSeconds); }},
    {"elapsed_seconds", [](const EventRow& row) { return secondsCell(row.game, row.walked.elapsed); }},
    {"wall_clock_ms", wallClock},
    {"code", [](const EventRow& row) { return codeOf(row.event); }},
    {"kind", [](const EventRow& row) { return wordOf(row.event); }},
    {"made", [](const EventRow& row) { return row.event.isShot() ? flag(row.event.isMade) : std::string(); }},
    {"points",
     [](const EventRow& row) {
       return row.event.isShot() ? number(row.event.isMade ? row.event.kind()->points : 0) : std::string();
     }},
    {"side", [](const EventRow& row) { return side(teamOf(row.event)); }},
    {"team", [](const EventRow& row) { return abbreviation(row.game, teamOf(row.event)); }},
    {"jersey", [](const EventRow& row) { return jersey(row.game, doerOf(row.event)); }},
    {"player", [](const EventRow& row) { return nameOf(row.game, doerOf(row.event)); }},
    {"other_jersey", [](const EventRow& row) { return jersey(row.game, otherOf(row.event)); }},
    {"other_player", [](const EventRow& row) { return nameOf(row.game, otherOf(row.event)); }},
    {"detail", [](const EventRow& row) { return detail(row.event, detail_key::kKind); }},
    {"free_throws",
     [](const EventRow& row) {
       return isFoul(row.event.code) ? detail(row.event, detail_key::kFreeThrows) : std::string();
     }},
    {"throw",
     [](const EventRow& row) {
       return std::string(Module1::field(detail(row.event, detail_key::kNumberOfThrow), 1, '/'));
     }},
    {"throws",
     [](const EventRow& row) {
       return std::string(Module1::field(detail(row.event, detail_key::kNumberOfThrow), 2, '/'));
     }},
    {"fast_break",
     [](const EventRow& row) {
       return row.event.isShot() ? flag(row.event.detail(detail_key::kFastBreak) == "F") : std::string();
     }},
    {"x", [](const EventRow& row) { return place(row.event, &GameEvent::x); }},
    {"y", [](const EventRow& row) { return place(row.event, &GameEvent::y); }},
    {"visitor_before", [](const EventRow& row) { return number(row.walked.before[Side::Visitor]); }},
    {"home_before", [](const EventRow& row) { return number(row.walked.before[Side::Home]); }},
    {"visitor_after", [](const EventRow& row) { return number(row.walked.after[Side::Visitor]); }},
    {"home_after", [](const EventRow& row) { return number(row.walked.after[Side::Home]); }},
    {"visitor_on_court",
     [](const EventRow& row) { return jerseys(row.game.walk.onCourt(row.walked, Side::Visitor)); }},
    {"home_on_court",
     [](const EventRow& row) { return jerseys(row.game.walk.onCourt(row.walked, Side::Home)); }},
    {"stint",
     [](const EventRow& row) { return row.walked.stint > 0 ? number(row.walked.stint) : std::string(); }},
    {"possession",
     [](const EventRow& row) {
       return row.walked.possession > 0 ? number(row.walked.possession) : std::string();
     }},
    {"possession_side", [](const EventRow& row) { return side(row.walked.withBall); }},
    {"doubtful", [](const EventRow& row) { return flag(row.event.isDoubtful); }},
};

constexpr Column<StintRow> kStints[] = {
    {"game", [](const StintRow& row) { return row.game.key; }},
    {"stint", [](const StintRow& row) { return number(row.stint.number); }},
    {"period", [](const StintRow& row) { return number(row.stint.period); }},
    {"start_clock", [](const StintRow& row) { return clockCell(row.game, row.stint.startClock); }},
    {"end_clock", [](const StintRow& row) { return clockCell(row.game, row.stint.endClock); }},
    {"start_elapsed",
     [](const StintRow& row) {
       return secondsCell(row.game, row.game.elapsed.at(row.stint.period, row.stint.startClock));
     }},
    {"end_elapsed",
     [](const StintRow& row) {
       return secondsCell(row.game, row.game.elapsed.at(row.stint.period, row.stint.endClock));
     }},
    {"seconds", [](const StintRow& row) { return secondsCell(row.game, row.stint.seconds); }},
    {"visitor_on_court", [](const StintRow& row) { return jerseys(row.stint.onCourt[Side::Visitor]); }},
    {"home_on_court", [](const StintRow& row) { return jerseys(row.stint.onCourt[Side::Home]); }},
    {"visitor_points", [](const StintRow& row) { return number(row.stint.points[Side::Visitor]); }},
    {"home_points", [](const StintRow& row) { return number(row.stint.points[Side::Home]); }},
    {"visitor_possessions", [](const StintRow& row) { return number(row.stint.possessions[Side::Visitor]); }},
    {"home_possessions", [](const StintRow& row) { return number(row.stint.possessions[Side::Home]); }},
};

// What an event's table has of the shot as well.
template <std::size_t column>
std::string sameCell(const ShotRow& row) {
  return kEvents[column].cell(row.of);
}
constexpr std::size_t eventColumn(std::string_view name) {
  return static_cast<std::size_t>(std::ranges::find(kEvents, name, &Column<EventRow>::name) -
                                  std::begin(kEvents));
}
template <std::size_t column>
constexpr Column<ShotRow> same() {
  return {kEvents[column].name, sameCell<column>};
}

constexpr Column<ShotRow> kShots[] = {
    same<eventColumn("game")>(),
    same<eventColumn("event")>(),
    same<eventColumn("period")>(),
    same<eventColumn("clock")>(),
    same<eventColumn("clock_seconds")>(),
    same<eventColumn("elapsed_seconds")>(),
    same<eventColumn("code")>(),
    same<eventColumn("kind")>(),
    same<eventColumn("detail")>(),
    same<eventColumn("fast_break")>(),
    {"value", [](const ShotRow& row) { return number(row.of.event.kind()->points); }},
    same<eventColumn("made")>(),
    same<eventColumn("side")>(),
    same<eventColumn("team")>(),
    same<eventColumn("jersey")>(),
    same<eventColumn("player")>(),
    {"assisted_by", [](const ShotRow& row) { return jerseyAt(row, row.assist); }},
    {"blocked_by", [](const ShotRow& row) { return jerseyAt(row, row.block); }},
    same<eventColumn("x")>(),
    same<eventColumn("y")>(),
    {"metres_out", metresCell<[](const FromRing& at) { return at.out; }>},
    {"metres_right", metresCell<[](const FromRing& at) { return at.right; }>},
    {"metres", metresCell<[](const FromRing& at) { return std::hypot(at.out, at.right); }>},
    {"zone",
     [](const ShotRow& row) {
       return row.of.event.hasPlace ? zoneWord(court::chartZone({row.of.event.x, row.of.event.y}))
                                    : std::string();
     }},
    same<eventColumn("visitor_before")>(),
    same<eventColumn("home_before")>(),
    same<eventColumn("stint")>(),
    same<eventColumn("possession")>(),
};

} // namespace

std::span<const Column<GameRow>> gameColumns() {
  return kGames;
}
std::span<const Column<PlayerRow>> playerColumns() {
  return kPlayers;
}
std::span<const Column<EventRow>> eventColumns() {
  return kEvents;
}
std::span<const Column<StintRow>> stintColumns() {
  return kStints;
}
std::span<const Column<ShotRow>> shotColumns() {
  return kShots;
}

} // namespace hooptab::tables
