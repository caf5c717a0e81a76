#include "livedata/EuroLeagueWriter.h"

#include "court/CourtGeometry.h"
#include "livedata/EuroLeagueSheet.h"
#include "livedata/EuroLeagueTime.h"
#include "livedata/JsonDocument.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace hooptab {

namespace {

constexpr std::array kHomeFirst = {Side::Home, Side::Visitor};

// Codes and ids have ten places.
std::string padded(std::string text) {
  constexpr std::size_t kPlaces = 10;
  text.resize(std::max(text.size(), kPlaces), ' ');
  return text;
}

// Families have more words than given names do: "ROY III, ANDRE".
std::string familyFirst(std::string_view name) {
  name = Module1::trimmed(name);
  const std::size_t blank = name.find(' ');
  return blank == std::string_view::npos
             ? std::string(name)
             : std::string(Module1::trimmed(name.substr(blank))) + ", " + std::string(name.substr(0, blank));
}

const ForeignPlayer* playerOf(const ForeignGame& game, const Doer& doer) {
  return doer.isPlayer() ? &game.teams[*doer.team].players[static_cast<std::size_t>(doer.player)] : nullptr;
}

bool isMarker(const EuroLeaguePlay& play) {
  return play.kind->row == EuroLeagueRow::PeriodStart || play.kind->row == EuroLeagueRow::PeriodEnd ||
         play.kind->row == EuroLeagueRow::GameEnd;
}

// The row of an end is of the minute that would follow.
int minuteOf(const EuroLeaguePlay& play) {
  const bool isEnd = play.kind->row == EuroLeagueRow::PeriodEnd || play.kind->row == EuroLeagueRow::GameEnd;
  return euroLeagueMinute(play.period, play.centiseconds) + (isEnd ? 1 : 0);
}
std::string clockOf(const EuroLeaguePlay& play) {
  return Module1::clockText(play.centiseconds / 100);
}

std::string idOf(const EuroLeagueSheet& sheet, const EuroLeaguePlay& play) {
  if (play.kind->code == EventCode::XCF)
    return play.doer.team == Side::Home ? "CO_A" : "CO_B";
  return sheet.id(play.doer);
}

OrderedJson rowOf(const ForeignGame& game, const EuroLeagueSheet& sheet, const EuroLeaguePlay& play) {
  const std::optional<Side> team = play.doer.team;
  const ForeignPlayer* const player = playerOf(game, play.doer);
  OrderedJson row;
  row["TYPE"] = 0;
  row["NUMBEROFPLAY"] = play.number;
  row["CODETEAM"] = padded(team ? sheet.code(*team) : "");
  row["PLAYER_ID"] = padded(idOf(sheet, play));
  row["PLAYTYPE"] = play.kind->type;
  row["PLAYER"] = player == nullptr ? OrderedJson() : OrderedJson(familyFirst(player->name));
  row["TEAM"] = team ? OrderedJson(game.teams[*team].name) : OrderedJson();
  row["DORSAL"] = player != nullptr                            ? OrderedJson(player->jersey)
                  : !team || play.kind->code == EventCode::XCF ? OrderedJson()
                                                               : OrderedJson("");
  row["MINUTE"] = minuteOf(play);
  row["MARKERTIME"] = isMarker(play) ? std::string() : clockOf(play);
  for (const Side side : kHomeFirst) {
    const int score = play.score[side];
    const bool says = play.kind->isMade && score > 0;
    row[side == Side::Home ? "POINTS_A" : "POINTS_B"] = says ? OrderedJson(score) : OrderedJson();
  }
  row["COMMENT"] = "";
  row["PLAYINFO"] = play.words;
  return row;
}

// The part of the court, by the distance from the ring and the side.
std::string zoneOf(EventCode code, double across, double along) {
  constexpr double kUnderTheRing = 42;
  constexpr double kNear = 250;
  constexpr double kMiddle = 430;
  constexpr double kHalfWay = 1400 - 157.5;
  const double distance = std::hypot(across, along);
  const bool isLeft = across <= 0;
  if (code == EventCode::GF3)
    return along > kHalfWay ? "J" : isLeft ? "H" : "I";
  if (distance <= kUnderTheRing)
    return "A";
  if (distance <= kNear)
    return isLeft ? "B" : "C";
  if (distance <= kMiddle)
    return isLeft ? "D" : "E";
  return isLeft ? "F" : "G";
}

// Centimetres from the ring; (-1, -1) where there is no place.
void addPlace(const ForeignEvent& shot, OrderedJson& row) {
  constexpr double kCentimetresPerUnit = court::kMetresPerUnit * 100;
  double across = -1;
  double along = -1;
  if (shot.place) {
    across = std::round((shot.place->second - court::kBasketY) * kCentimetresPerUnit);
    along = std::round((shot.place->first - court::kBasketX) * kCentimetresPerUnit);
    if (across == -1 && along == -1) // which would be no place
      along = 1;
  }
  row["COORD_X"] = static_cast<int>(across);
  row["COORD_Y"] = static_cast<int>(along);
  row["ZONE"] = shot.place ? zoneOf(shot.code, across, along) : " ";
}

OrderedJson pointsRowOf(const ForeignGame& game, const EuroLeagueSheet& sheet, const EuroLeaguePlay& play) {
  const ForeignEvent& shot = *play.shot;
  const auto flag = [](bool is) { return is ? "1" : "0"; };
  OrderedJson row;
  row["NUM_ANOT"] = play.number;
  row["TEAM"] = padded(sheet.code(*play.doer.team));
  row["ID_PLAYER"] = padded(sheet.id(play.doer));
  row["PLAYER"] = familyFirst(playerOf(game, play.doer)->name);
  row["ID_ACTION"] = play.kind->type;
  row["ACTION"] = play.kind->words;
  row["POINTS"] = !shot.isMade                        ? 0
                  : play.kind->code == EventCode::GFT ? 1
                  : play.kind->code == EventCode::GF3 ? 3
                                                      : 2;
  addPlace(shot, row);
  row["FASTBREAK"] = flag(shot.isMade && shot.isFastBreak);
  row["SECOND_CHANCE"] = flag(play.isOfSecondChance);
  row["POINTS_OFF_TURNOVER"] = flag(play.isOfTurnover);
  row["MINUTE"] = minuteOf(play);
  row["CONSOLE"] = clockOf(play);
  row["POINTS_A"] = play.score[Side::Home];
  row["POINTS_B"] = play.score[Side::Visitor];
  row["UTC"] = euroLeagueTime(shot.wallClock);
  return row;
}

// The box score: what the game says officially, and what its events count to where it says nothing.
class Box {
 public:
  explicit Box(const ForeignGame& game) : m_game(game), m_sheet(game) {}

  [[nodiscard]] OrderedJson document() const {
    OrderedJson document;
    document["Live"] = !m_game.isFinished;
    document["Referees"] = referees();
    document["Attendance"] = m_game.attendance;
    for (const bool adds : {false, true}) {
      OrderedJson rows = OrderedJson::array();
      for (const Side team : kHomeFirst)
        rows.push_back(quartersOf(team, adds));
      document[adds ? "EndOfQuarter" : "ByQuarter"] = std::move(rows);
    }
    OrderedJson stats = OrderedJson::array();
    for (const Side team : kHomeFirst)
      stats.push_back(statsOf(team));
    document["Stats"] = std::move(stats);
    return document;
  }

 private:
  [[nodiscard]] const ForeignTeam& team(Side side) const { return m_game.teams[side]; }
  static int said(const OfficialNumbers& official, std::string_view name, int otherwise) {
    const auto found = official.find(name);
    return found == official.end() ? otherwise : found->second.value;
  }
  // A personal foul is any of a player.
  static int figure(const OfficialNumbers& official, std::string_view name, int counted) {
    return said(official, name, counted) +
           (name == "PF" && official.contains(name) ? said(official, "TF", 0) : 0);
  }

  [[nodiscard]] std::string referees() const {
    std::string text;
    for (std::size_t begin = 0, end = 0; end != std::string::npos && !m_game.referees.empty();
         begin = end + 1) {
      end = m_game.referees.find(',', begin);
      const std::string name = familyFirst(std::string_view(m_game.referees).substr(begin, end - begin));
      text += (begin == 0 ? "" : ", ") + name + (name.find(',') == std::string::npos ? ", " : "");
    }
    return text;
  }
  [[nodiscard]] OrderedJson quartersOf(Side side, bool adds) const {
    const std::vector<int>& saidPoints = team(side).pointsOfPeriod;
    const std::vector<int>& points = saidPoints.empty() ? m_sheet.pointsOfPeriods(side) : saidPoints;
    OrderedJson row;
    row["Team"] = team(side).name;
    int sum = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
      const bool isExtra = i >= kEuroLeagueQuarters;
      const std::size_t place = isExtra ? i - kEuroLeagueQuarters + 1 : i + 1;
      sum = (adds ? sum : 0) + points[i];
      row[(isExtra ? "Extra" : "Quarter") + std::to_string(place)] = sum;
    }
    return row;
  }
  [[nodiscard]] OrderedJson statsOf(Side side) const {
    const ForeignTeam& foreign = team(side);
    OrderedJson players = OrderedJson::array();
    for (std::size_t i = 0; i < foreign.players.size(); ++i)
      players.push_back(playerRow({side, static_cast<int>(i)}, foreign.players[i]));
    OrderedJson stats;
    stats["Team"] = foreign.name;
    stats["Coach"] = familyFirst(foreign.coach);
    stats["PlayersStats"] = players;
    stats["tmr"] = teamRow(side);
    stats["totr"] = totals(side, players, stats["tmr"]);
    return stats;
  }
  static OrderedJson headOf(const std::string& id, const ForeignPlayer* player, bool isPlaying,
                            const std::string& code) {
    OrderedJson row;
    row["Player_ID"] = padded(id);
    row["IsStarter"] = player != nullptr && player->isStarter ? 1 : 0;
    row["IsPlaying"] = isPlaying ? 1 : 0;
    row["Team"] = code;
    row["Dorsal"] = player == nullptr ? "" : player->jersey;
    row["Player"] = player == nullptr ? "" : familyFirst(player->name);
    return row;
  }
  static OrderedJson minutesOf(const ForeignPlayer& player) {
    const auto seconds = player.official.find("seconds");
    if (seconds == player.official.end())
      return {};
    return seconds->second.value > 0 ? Module1::clockText(seconds->second.value)
                                     : std::string(kEuroLeagueNotPlayed);
  }
  [[nodiscard]] OrderedJson playerRow(const Doer& doer, const ForeignPlayer& player) const {
    OrderedJson row = headOf(m_sheet.id(doer), &player, m_sheet.isOnCourt(doer), m_sheet.code(*doer.team));
    row["Minutes"] = minutesOf(player);
    addFigures(
        row, [&](std::string_view name) { return figure(player.official, name, m_sheet.count(doer, name)); });
    const auto plusMinus = player.official.find("plusMinus");
    row["Plusminus"] =
        plusMinus == player.official.end() ? OrderedJson() : OrderedJson(plusMinus->second.value);
    return row;
  }
  [[nodiscard]] OrderedJson teamRow(Side side) const {
    OrderedJson row = headOf({}, nullptr, false, m_sheet.code(side));
    row["Minutes"] = nullptr;
    addFigures(row, [&](std::string_view name) {
      return said(team(side).official, "teamRow." + std::string(name), m_sheet.count({side, -1}, name));
    });
    row["Plusminus"] = nullptr;
    return row;
  }
  // The team's official sums are those of the players alone.
  [[nodiscard]] OrderedJson totals(Side side, const OrderedJson& players, const OrderedJson& own) const {
    const OfficialNumbers& official = team(side).official;
    int seconds = 0;
    for (const ForeignPlayer& player : team(side).players)
      seconds += said(player.official, "seconds", 0);
    OrderedJson row;
    row["Minutes"] = Module1::clockText(seconds);
    addFigures(row, [&](std::string_view name) {
      const auto* const found = std::ranges::find(kEuroLeagueFigures, name, &EuroLeagueFigure::number);
      const std::string member(found->member);
      int sum = 0;
      for (const OrderedJson& player : players)
        sum += player[member].get<int>();
      return figure(official, name, sum) + own[member].get<int>();
    });
    return row;
  }
  template <typename Value>
  static void addFigures(OrderedJson& row, Value value) {
    std::map<std::string_view, int> all;
    for (const EuroLeagueFigure& figure : kEuroLeagueFigures) {
      row[std::string(figure.member)] = all[figure.number] = value(figure.number);
      if (figure.number == "DR")
        row["TotalRebounds"] = all["OR"] + all["DR"];
    }
    const int missed = all["FGA"] - all["FGM"] + all["F3A"] - all["F3M"] + all["FTA"] - all["FTM"];
    row["Valuation"] = all["PTS"] + all["OR"] + all["DR"] + all["Ast"] + all["ST"] + all["BS"] + all["FD"] -
                       missed - all["TO"] - all["BA"] - all["PF"];
  }

  const ForeignGame& m_game;
  EuroLeagueSheet m_sheet;
};

} // namespace

std::string writeEuroLeaguePlayByPlay(const ForeignGame& game) {
  const EuroLeagueSheet sheet(game);
  OrderedJson document;
  document["Live"] = !game.isFinished;
  for (const Side team : kHomeFirst)
    document[team == Side::Home ? "TeamA" : "TeamB"] = game.teams[team].name;
  for (const Side team : kHomeFirst)
    document[team == Side::Home ? "CodeTeamA" : "CodeTeamB"] = padded(sheet.code(team));
  document["ActualQuarter"] = sheet.plays().empty() ? 0 : sheet.plays().back().period;
  for (const std::string_view list : kEuroLeagueLists)
    document[std::string(list)] = OrderedJson::array();
  for (const EuroLeaguePlay& play : sheet.plays()) {
    const auto list = static_cast<std::size_t>(std::min(play.period - 1, kEuroLeagueQuarters));
    document[std::string(kEuroLeagueLists[list])].push_back(rowOf(game, sheet, play));
  }
  return jsonText(document);
}

std::string writeEuroLeagueBox(const ForeignGame& game) {
  return jsonText(Box(game).document());
}

// Field goals, and the free throws that were made.
std::string writeEuroLeaguePoints(const ForeignGame& game) {
  const EuroLeagueSheet sheet(game);
  OrderedJson rows = OrderedJson::array();
  for (const EuroLeaguePlay& play : sheet.plays()) {
    if (play.shot != nullptr && (play.shot->isMade || play.kind->code != EventCode::GFT))
      rows.push_back(pointsRowOf(game, sheet, play));
  }
  OrderedJson document;
  document["Rows"] = std::move(rows);
  return jsonText(document);
}

} // namespace hooptab
