#include "livedata/EuroLeaguePlays.h"

#include "court/CourtGeometry.h"
#include "foreign/ClockForms.h"
#include "foreign/ExchangeNote.h"
#include "livedata/EuroLeagueKinds.h"
#include "livedata/EuroLeagueTime.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace hooptab {

namespace {

constexpr int kCentisecondsPerMinute = 6000;

struct Row {
  const EuroLeagueKind* kind = nullptr;
  ForeignEvent event = {}; // belongsTo: a row
  int number = 0;          // NUMBEROFPLAY
};

bool isFieldGoal(const Row& row) {
  return row.event.code == EventCode::GFG || row.event.code == EventCode::GF3 ||
         row.event.code == EventCode::GDK;
}
bool isShot(const Row& row) {
  return isFieldGoal(row) || row.event.code == EventCode::GFT;
}
bool areOpponents(const Row& one, const Row& other) {
  const std::optional<Side> team = one.event.doer.team;
  const std::optional<Side> others = other.event.doer.team;
  return team && others && team != others;
}

// As part of a sentence: "coach challenge".
std::string plainName(const EuroLeagueKind& kind) {
  std::string name(kind.words);
  std::ranges::transform(name, name.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
  });
  return name;
}

// Reads the lists of rows, period by period.
class Rows {
 public:
  Rows(const Json& playByPlay, EuroLeagueTeams& teams, ForeignGame& game) : m_teams(teams), m_game(game) {
    for (std::size_t list = 0; list < kEuroLeagueLists.size(); ++list)
      readList(listOf(playByPlay, kEuroLeagueLists[list]), static_cast<int>(list) + 1);
    for (const Json* play : m_waiting)
      readRow(*play, m_clock);
    m_game.isFinished = m_gameHasEnded || isOver(playByPlay);
    if (m_game.isFinished)
      endPeriod();
    if (m_slips > 0)
      m_game.notes.push_back({Text::EuroLeagueSlips, std::to_string(m_slips)});
  }
  [[nodiscard]] std::vector<Row> take() { return std::move(m_rows); }

 private:
  void readList(const Json& list, int period) {
    if (list.empty())
      return;
    beginPeriod(period);
    const bool saysItsBegin =
        std::ranges::any_of(list, [](const Json& play) { return textOf(play, "PLAYTYPE") == "BP"; });
    m_hasBegun = !saysItsBegin;
    for (const Json& play : list)
      readPlay(play);
  }

  void readPlay(const Json& play) {
    const std::string type = textOf(play, "PLAYTYPE");
    const EuroLeagueKind* kind = euroLeagueKind(type);
    if (kind == nullptr)
      return passOver(type.empty() ? "row without a kind" : type);
    switch (kind->row) {
    case EuroLeagueRow::PeriodStart:
      if (m_period > kEuroLeagueQuarters && (m_hasEnded || m_hasBegun))
        beginPeriod(m_period + 1);
      m_hasBegun = true;
      return;
    case EuroLeagueRow::GameEnd: m_gameHasEnded = true; [[fallthrough]];
    case EuroLeagueRow::PeriodEnd: return endPeriod();
    case EuroLeagueRow::JumpBall:
    case EuroLeagueRow::Challenge: return passOver(plainName(*kind));
    default: break;
    }
    const bool isChange = kind->row == EuroLeagueRow::In || kind->row == EuroLeagueRow::Out;
    if (m_hasEnded && (isChange || clockOf(play) == fullClock(m_period + 1)))
      m_waiting.push_back(&play);
    else
      readRow(play, isChange && !m_hasBegun && m_period > kEuroLeagueQuarters ? fullClock(m_period)
                                                                              : clockOf(play));
  }

  [[nodiscard]] int fullClock(int period) const {
    return (period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * kCentisecondsPerMinute;
  }
  void beginPeriod(int period) {
    endPeriod(); // what has a next period was played to the end
    m_period = period;
    m_clock = fullClock(period);
    m_hasEnded = false;
    m_hasBegun = false;
    addMarker(ForeignKind::PeriodStart, m_clock);
    for (const Json* play : std::exchange(m_waiting, {}))
      readRow(*play, m_clock);
  }
  void endPeriod() {
    if (!m_hasEnded)
      addMarker(ForeignKind::PeriodEnd, 0);
    m_hasEnded = true;
  }
  void addMarker(ForeignKind kind, int centiseconds) {
    Row& row = m_rows.emplace_back();
    row.event.kind = kind;
    row.event.period = m_period;
    row.event.centiseconds = centiseconds;
  }
  // As the last row where it does not say its own, or one of another minute than it says itself.
  [[nodiscard]] int clockOf(const Json& play) const {
    const std::optional<int> clock = clockCentiseconds(textOf(play, "MARKERTIME"));
    return !clock || isSlip(play, *clock) ? m_clock : std::min(*clock, fullClock(m_period));
  }
  [[nodiscard]] bool isSlip(const Json& play, int clock) const {
    const std::optional<int> minute = numberOf(member(play, "MINUTE"));
    return minute && euroLeagueMinute(m_period, clock) != *minute &&
           euroLeagueMinute(m_period, m_clock) == *minute;
  }

  void readRow(const Json& play, int centiseconds) {
    Row row;
    row.kind = euroLeagueKind(textOf(play, "PLAYTYPE"));
    row.number = numberOf(play, "NUMBEROFPLAY", 0);
    row.event.kind = row.kind->row == EuroLeagueRow::In    ? ForeignKind::In
                     : row.kind->row == EuroLeagueRow::Out ? ForeignKind::Out
                                                           : ForeignKind::Event;
    row.event.code = row.kind->code;
    row.event.isMade = row.kind->isMade;
    row.event.detail = row.kind->detail;
    row.event.period = m_period;
    row.event.centiseconds = m_clock = centiseconds;
    m_slips += isSlip(play, clockCentiseconds(textOf(play, "MARKERTIME")).value_or(centiseconds)) ? 1 : 0;
    if (findDoer(play, row.event))
      m_rows.push_back(std::move(row));
    else
      passOver(plainName(*row.kind) + " of nobody");
  }
  // False where nobody who can have done it is said.
  bool findDoer(const Json& play, ForeignEvent& event) {
    const std::string id = textOf(play, "PLAYER_ID");
    const std::optional<Side> team = m_teams.teamOf(textOf(play, "CODETEAM"));
    event.doer = {team, -1};
    if (event.detail == "MEDIA")
      event.doer.team.reset();
    if (event.code == EventCode::XTO)
      return team || event.detail == "MEDIA";
    if (!team || event.code == EventCode::XCF)
      return team.has_value();
    const bool isCoach = id.starts_with("CO_");
    if (isCoach || id.starts_with("AC_")) {
      const bool isFoul = event.code == EventCode::SPF || event.code == EventCode::STF;
      event.code = EventCode::XCF;
      event.detail = isCoach ? "C" : "B";
      return isFoul;
    }
    if (id.empty())
      return becomesOfTeam(event.code);
    event.doer = m_teams.player(*team, id, textOf(play, "PLAYER"), textOf(play, "DORSAL"));
    return true;
  }
  static bool becomesOfTeam(EventCode& code) {
    switch (code) {
    case EventCode::SOR: code = EventCode::XOR; return true;
    case EventCode::SDR: code = EventCode::XDR; return true;
    case EventCode::STO: code = EventCode::XTV; return true;
    default: return false;
    }
  }

  // A file that was fetched right after the buzzer has no row for it.
  [[nodiscard]] bool isOver(const Json& playByPlay) const {
    const Json& live = member(playByPlay, "Live");
    if (!live.is_boolean() || live.get<bool>() || m_period < m_game.periods || m_clock > 0)
      return false;
    int margin = 0;
    for (const Row& row : m_rows) {
      if (!isShot(row) || !row.event.isMade)
        continue;
      const int points = row.event.code == EventCode::GFT ? 1 : row.event.code == EventCode::GF3 ? 3 : 2;
      margin += row.event.doer.team == Side::Visitor ? points : -points;
    }
    return margin != 0;
  }
  void passOver(const std::string& what) { ++m_game.unknown[what]; }

  EuroLeagueTeams& m_teams;
  ForeignGame& m_game;
  std::vector<Row> m_rows;
  std::vector<const Json*> m_waiting; // rows of an interval, for the period that follows
  int m_period = 0;
  int m_clock = 0; // of the last row
  int m_slips = 0; // rows whose clock is of another minute than they say
  bool m_hasBegun = false;
  bool m_hasEnded = true;
  bool m_gameHasEnded = false;
};

// Pairs of rows that are of one action: each row is in one pair at most, and the nearest are paired first.
// `rankOf` says how well two rows fit (0 best), or that they do not. By row: its partner, -1 without one.
template <typename RankOf>
std::vector<int> pairsOf(const std::vector<Row>& rows, RankOf rankOf) {
  constexpr std::size_t kNear = 10;
  // Rank, rows between, difference of the clocks, and the two.
  std::vector<std::tuple<int, std::size_t, int, std::size_t, std::size_t>> candidates;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t end = std::min(rows.size(), i + kNear + 1);
    for (std::size_t j = i + 1; j < end && rows[j].event.period == rows[i].event.period; ++j) {
      if (const std::optional<int> rank = rankOf(rows[i], rows[j]))
        candidates.emplace_back(*rank, j - i,
                                std::abs(rows[i].event.centiseconds - rows[j].event.centiseconds), i, j);
    }
  }
  std::ranges::sort(candidates);
  std::vector<int> partners(rows.size(), -1);
  for (const auto& [rank, distance, clocks, first, second] : candidates) {
    if (partners[first] < 0 && partners[second] < 0) {
      partners[first] = static_cast<int>(second);
      partners[second] = static_cast<int>(first);
    }
  }
  return partners;
}

// For pairs of a row that stands behind its partner as a rule, and before it at times.
template <typename IsLeader, typename IsFollower, typename Fits>
std::vector<int> pairsInOrder(const std::vector<Row>& rows, IsLeader isLeader, IsFollower isFollower,
                              Fits fits) {
  return pairsOf(rows, [&](const Row& first, const Row& second) -> std::optional<int> {
    if (isLeader(first) && isFollower(second) && fits(first, second))
      return 0;
    if (isFollower(first) && isLeader(second) && fits(second, first))
      return 1;
    return std::nullopt;
  });
}

bool isOf(const Row& row, EuroLeagueRow kind) {
  return row.kind != nullptr && row.kind->row == kind;
}
bool isMissedFieldGoal(const Row& row) {
  return isFieldGoal(row) && !row.event.isMade;
}

void joinFouls(std::vector<Row>& rows, ForeignGame& game) {
  const auto isFoul = [](const Row& row) {
    return row.event.code == EventCode::SPF || row.event.code == EventCode::STF;
  };
  const auto isDrawn = [](const Row& row) { return isOf(row, EuroLeagueRow::FoulDrawn); };
  // A technical foul is drawn by nobody as a rule.
  const std::vector<int> partners =
      pairsOf(rows, [&](const Row& one, const Row& other) -> std::optional<int> {
        const bool fits = (isFoul(one) && isDrawn(other)) || (isDrawn(one) && isFoul(other));
        if (!fits || !areOpponents(one, other))
          return std::nullopt;
        return one.event.code == EventCode::STF || other.event.code == EventCode::STF ? 1 : 0;
      });
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!isDrawn(rows[i]))
      continue;
    if (partners[i] < 0)
      ++game.unknown["foul drawn without a foul"];
    else
      rows[static_cast<std::size_t>(partners[i])].event.other = rows[i].event.doer;
  }
}

void joinBlocks(std::vector<Row>& rows, ForeignGame& game) {
  const auto isBlock = [](const Row& row) { return row.event.code == EventCode::SBS; };
  const auto isRejected = [](const Row& row) { return isOf(row, EuroLeagueRow::Rejected); };
  const std::vector<int> victims = pairsInOrder(rows, isRejected, isBlock, areOpponents);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!isRejected(rows[i]))
      continue;
    if (victims[i] < 0)
      ++game.unknown["rejected shot without a block"];
    else
      rows[static_cast<std::size_t>(victims[i])].event.other = rows[i].event.doer;
  }
  const auto isOfVictim = [](const Row& shot, const Row& block) {
    return areOpponents(shot, block) &&
           (!block.event.other.isPlayer() || block.event.other == shot.event.doer);
  };
  const std::vector<int> shots = pairsInOrder(rows, isMissedFieldGoal, isBlock, isOfVictim);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (isBlock(rows[i]))
      rows[i].event.belongsTo = shots[i];
  }
}

void joinAssistsAndSteals(std::vector<Row>& rows) {
  const auto isAssist = [](const Row& row) { return row.event.code == EventCode::SA; };
  const auto isMade = [](const Row& row) { return isShot(row) && row.event.isMade; };
  const auto isTeamMate = [](const Row& shot, const Row& assist) {
    return shot.event.doer.team == assist.event.doer.team && shot.event.doer != assist.event.doer;
  };
  const auto isSteal = [](const Row& row) { return row.event.code == EventCode::SST; };
  const auto isTurnover = [](const Row& row) {
    return row.event.code == EventCode::STO || row.event.code == EventCode::XTV;
  };
  const std::vector<int> shots = pairsInOrder(rows, isMade, isAssist, isTeamMate);
  const std::vector<int> turnovers = pairsInOrder(rows, isTurnover, isSteal, areOpponents);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (isAssist(rows[i]))
      rows[i].event.belongsTo = shots[i];
    else if (isSteal(rows[i]))
      rows[i].event.belongsTo = turnovers[i];
  }
}

// An offensive foul is a turnover too, which has a row of its own.
void joinOffensiveFouls(std::vector<Row>& rows) {
  const auto isOffensive = [](const Row& row) {
    return row.event.code == EventCode::SPF && row.event.detail == "O";
  };
  const auto isTurnover = [](const Row& row) { return row.event.code == EventCode::STO; };
  const auto isOfSame = [](const Row& foul, const Row& turnover) {
    return foul.event.doer == turnover.event.doer;
  };
  const std::vector<int> fouls = pairsInOrder(rows, isOffensive, isTurnover, isOfSame);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (isTurnover(rows[i]) && fouls[i] >= 0)
      rows[i].event.detail = "OFFENSIVE";
  }
}

// (-1, -1) stands for no place, and so does (0, 0) in no zone.
std::optional<std::pair<double, double>> placeOf(const Json& shot) {
  constexpr double kCentimetresPerMetre = 100;
  const std::optional<double> across = decimalOf(shot, "COORD_X");
  const std::optional<double> along = decimalOf(shot, "COORD_Y");
  if (!across || !along || (*across == -1 && *along == -1) ||
      (*across == 0 && *along == 0 && textOf(shot, "ZONE").empty()))
    return std::nullopt;
  const court::Place place = court::atEdge({court::kBasketX + court::units(*along / kCentimetresPerMetre),
                                            court::kBasketY + court::units(*across / kCentimetresPerMetre)});
  return std::pair(place.x, place.y);
}

bool isOfSameShot(const Row& row, const Json& shot, const EuroLeagueTeams& teams) {
  const std::string id = textOf(shot, "ID_PLAYER");
  return id.empty() || !row.event.doer.isPlayer() || id == teams.idOf(row.event.doer);
}

// Places, fast breaks and times. Returns how many of the shots' rows belong to no shot of the play-by-play.
int takeShots(const Json& points, const EuroLeagueTeams& teams, std::vector<Row>& rows) {
  std::unordered_map<int, Row*> byNumber;
  for (Row& row : rows) {
    if (isShot(row))
      byNumber.emplace(row.number, &row);
  }
  int lost = 0;
  for (const Json& shot : listOf(points, "Rows")) {
    const auto found = byNumber.find(numberOf(shot, "NUM_ANOT", -1));
    if (found == byNumber.end() || !isOfSameShot(*found->second, shot, teams)) {
      ++lost;
      continue;
    }
    ForeignEvent& event = found->second->event;
    if (event.code != EventCode::GFT)
      event.place = placeOf(shot);
    event.isFastBreak = flagOf(shot, "FASTBREAK");
    event.wallClock = timeOfEuroLeague(textOf(shot, "UTC")).value_or(0);
  }
  return lost;
}

// What stands for itself among our events, with its partners by their places there.
std::vector<ForeignEvent> eventsOf(const std::vector<Row>& rows) {
  std::vector<int> places(rows.size(), -1);
  int next = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (!isOf(rows[i], EuroLeagueRow::FoulDrawn) && !isOf(rows[i], EuroLeagueRow::Rejected))
      places[i] = next++;
  }
  std::vector<ForeignEvent> events;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (places[i] < 0)
      continue;
    ForeignEvent& event = events.emplace_back(rows[i].event);
    if (event.belongsTo >= 0)
      event.belongsTo = places[static_cast<std::size_t>(event.belongsTo)];
    if (event.code == EventCode::GFG && event.detail == "DUNK" && !event.place) {
      event.code = EventCode::GDK;
      event.detail.clear();
    }
  }
  return events;
}

} // namespace

void readEuroLeaguePlays(const Json& playByPlay, const Json* points, EuroLeagueTeams& teams,
                         ForeignGame& game) {
  std::vector<Row> rows = Rows(playByPlay, teams, game).take();
  if (std::ranges::none_of(rows, [](const Row& row) { return row.kind != nullptr; }))
    throw UnreadableGame({Text::EuroLeagueNoPlays});
  if (points != nullptr) {
    if (const int lost = takeShots(*points, teams, rows); lost > 0)
      game.notes.push_back({Text::EuroLeagueLostShots, std::to_string(lost)});
  }
  joinFouls(rows, game);
  joinBlocks(rows, game);
  joinAssistsAndSteals(rows);
  joinOffensiveFouls(rows);
  game.events = eventsOf(rows);
}

} // namespace hooptab
