#include "livedata/NbaLiveReader.h"

#include "game/GameDetails.h"
#include "game/GameEvent.h"
#include "livedata/NbaLiveBox.h"
#include "livedata/NbaLiveForms.h"
#include "livedata/NbaLiveRoster.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <unordered_map>

namespace hooptab {

namespace {

using namespace nba_live;
using Rows = std::vector<const Json*>;

constexpr int kMinute = 6000; // centiseconds

// Written out as they are compared many thousand times.
bool says(const Json& row, std::string_view name, std::string_view word) {
  const Json& value = member(row, name);
  return value.is_string() && value.get_ref<const std::string&>() == word;
}
bool isSubstitution(const Json* row) {
  return says(*row, "actionType", "substitution");
}
bool isThrow(const Json* row) {
  return says(*row, "actionType", "freethrow");
}
bool beginsThrows(const Json* row) {
  return isThrow(row) || says(*row, "actionType", "foul");
}
bool isSameClock(const Json* left, const Json* right) {
  return member(*left, "period") == member(*right, "period") &&
         member(*left, "clock") == member(*right, "clock");
}

// Changes between a foul and the last free throw at its clock stand behind that throw: who was on court at
// the foul is there, by the league's count, until the ball is alive again.
void moveChangesBehindThrows(Rows& rows) {
  for (auto begin = rows.begin(); begin != rows.end();) {
    const auto end =
        std::find_if_not(begin, rows.end(), [&](const Json* row) { return isSameClock(*begin, row); });
    const auto first = std::find_if(begin, end, beginsThrows);
    auto behind = end;
    while (behind != first && !isThrow(*(behind - 1)))
      --behind;
    std::stable_partition(first, behind, [](const Json* row) { return !isSubstitution(row); });
    begin = end;
  }
}

// In the order of the game, which their order numbers say.
Rows rowsInOrder(const Json& playByPlay) {
  std::vector<std::pair<double, const Json*>> numbered;
  double number = 0;
  for (const Json& row : listOf(member(playByPlay, "game"), "actions")) {
    number = decimalOf(row, "orderNumber").value_or(number);
    numbered.emplace_back(number, &row);
  }
  std::ranges::stable_sort(numbered, {}, [](const auto& each) { return each.first; });
  Rows rows;
  for (const auto& each : numbered)
    rows.push_back(each.second);
  moveChangesBehindThrows(rows);
  return rows;
}

bool hasQualifier(const Json& row, std::string_view qualifier) {
  return std::ranges::any_of(listOf(row, "qualifiers"), [qualifier](const Json& each) {
    return each.is_string() && each.get_ref<const std::string&>() == qualifier;
  });
}

// "2freethrow". A foul without such a word awards none.
int throwsAwarded(const Json& foul) {
  constexpr std::string_view kWord = "freethrow";
  for (const Json& each : listOf(foul, "qualifiers")) {
    const std::string qualifier = textOf(each);
    if (qualifier.size() == kWord.size() + 1 && qualifier.ends_with(kWord))
      return std::max(Module1::wholeNumber(qualifier.substr(0, 1)), 0);
  }
  return 0;
}

std::optional<Side> opponentOf(std::optional<Side> team) {
  return team ? std::optional(otherSide(*team)) : std::nullopt;
}

// The rows, taken one by one.
class Plays {
 public:
  explicit Plays(ForeignGame& game) : m_game(game), m_roster(game.teams) {}

  void take(const Json& row);
  [[nodiscard]] bool hasEnd() const { return m_hasEnd; }
  // Of the last one that was played to its end.
  [[nodiscard]] int endedPeriod() const { return m_endedPeriod; }

 private:
  using Taker = void (Plays::*)(const Json&);
  struct Kind {
    std::string_view actionType;
    Taker take;
  };
  static const std::array<Kind, 13> kKinds;

  void takeFieldGoal(const Json& row);
  void takeFreeThrow(const Json& row);
  void takeAssist(const Json& row, const Doer& shooter);
  void takeRebound(const Json& row);
  void takeTurnover(const Json& row);
  void takeSteal(const Json& row);
  void takeBlock(const Json& row);
  void takeFoul(const Json& row);
  void takeTechnical(const Json& row);
  void takeTimeOut(const Json& row);
  void takeJumpBall(const Json& row);
  void takeSubstitution(const Json& row);
  void takePeriod(const Json& row);
  void takeGame(const Json& row) { m_hasEnd = m_hasEnd || says(row, "subType", "end"); }

  void passOver(const Json& row);
  [[nodiscard]] std::optional<Side> teamOf(const Json& row) const {
    return m_roster.teamOf(textOf(row, "teamId"));
  }
  [[nodiscard]] Doer doerOf(const Json& row);
  // What every kind has.
  [[nodiscard]] ForeignEvent eventOf(const Json& row, EventCode code, const Doer& doer) const;
  // Passes over what should be a player's or a team's, and is nobody's.
  void add(const Json& row, ForeignEvent event);
  // The place of the event to which this one belongs, which is then no other's; -1: none.
  [[nodiscard]] int partnerOf(std::unordered_map<std::string, int>& partners, const Json& row);

  ForeignGame& m_game;
  NbaLiveRoster m_roster;
  int m_period = 1;
  int m_centiseconds = 0;
  std::int64_t m_wallClock = 0;
  int m_endedPeriod = 0;
  bool m_hasEnd = false;
  std::unordered_map<std::string, int> m_shots;   // by number of action
  std::unordered_map<std::string, int> m_blocked; // shots, by who blocked them
  std::unordered_map<std::string, int> m_stolen;  // turnovers, by who stole the ball
};

const std::array<Plays::Kind, 13> Plays::kKinds = {{
    {"2pt", &Plays::takeFieldGoal},
    {"3pt", &Plays::takeFieldGoal},
    {"rebound", &Plays::takeRebound},
    {"substitution", &Plays::takeSubstitution},
    {"freethrow", &Plays::takeFreeThrow},
    {"foul", &Plays::takeFoul},
    {"turnover", &Plays::takeTurnover},
    {"steal", &Plays::takeSteal},
    {"block", &Plays::takeBlock},
    {"timeout", &Plays::takeTimeOut},
    {"period", &Plays::takePeriod},
    {"jumpball", &Plays::takeJumpBall},
    {"game", &Plays::takeGame},
}};

void Plays::take(const Json& row) {
  const int period = numberOf(row, "period", 0);
  const auto kind = std::ranges::find(kKinds, textOf(row, "actionType"), &Kind::actionType);
  if (kind == kKinds.end() || period < 1 || period > kLastPeriod) {
    passOver(row);
    return;
  }
  m_period = period;
  constexpr int kLatestClock = kMostMinutes * kMinute;
  m_centiseconds = std::min(centisecondsOf(textOf(row, "clock")).value_or(m_centiseconds), kLatestClock);
  m_wallClock = wallClockOf(textOf(row, "timeActual")).value_or(0);
  (this->*kind->take)(row);
}

void Plays::passOver(const Json& row) {
  std::string kind = textOf(row, "actionType");
  if (const std::string subType = textOf(row, "subType"); !subType.empty())
    kind += (kind.empty() ? "" : " ") + subType;
  ++m_game.unknown[kind.empty() ? "row without a kind" : kind];
}

Doer Plays::doerOf(const Json& row) {
  const std::string name = textOf(row, "playerNameI");
  return m_roster.player(textOf(row, "personId"), teamOf(row),
                         name.empty() ? textOf(row, "playerName") : name);
}

ForeignEvent Plays::eventOf(const Json& row, EventCode code, const Doer& doer) const {
  const EventKind* kind = kindOf(code);
  const bool isShot = kind != nullptr && kind->isShot;
  return {.code = code,
          .isMade = isShot && says(row, "shotResult", "Made"),
          .isFastBreak = isShot && hasQualifier(row, "fastbreak"),
          .period = m_period,
          .centiseconds = m_centiseconds,
          .doer = doer,
          .wallClock = m_wallClock};
}

void Plays::add(const Json& row, ForeignEvent event) {
  const EventKind* kind = kindOf(event.code);
  const bool isNobodys = kind->isOfTeam ? !event.doer.team : !event.doer.isPlayer();
  if (isNobodys) {
    passOver(row);
    return;
  }
  if (kind->isShot)
    m_shots[textOf(row, "actionNumber")] = static_cast<int>(m_game.events.size());
  m_game.events.push_back(std::move(event));
}

int Plays::partnerOf(std::unordered_map<std::string, int>& partners, const Json& row) {
  const auto found = partners.find(textOf(row, "personId"));
  if (found == partners.end())
    return -1;
  const int place = found->second;
  partners.erase(found);
  return place;
}

void Plays::takeFieldGoal(const Json& row) {
  const Doer shooter = doerOf(row);
  ForeignEvent shot = eventOf(row, EventCode::GF3, shooter);
  shot.detail = shotDetail(textOf(row, "subType"), textOf(row, "descriptor"));
  const auto across = decimalOf(row, "xLegacy");
  const auto away = decimalOf(row, "yLegacy");
  if (across && away)
    shot.place = placeOf(*across, *away);
  if (says(row, "actionType", "2pt")) {
    const bool isDunk = !shot.place && shot.detail == "DUNK";
    const bool isTipIn = !shot.place && shot.detail == "TIPIN";
    shot.code = isDunk ? EventCode::GDK : isTipIn ? EventCode::GPB : EventCode::GFG;
    if (isDunk || isTipIn)
      shot.detail.clear();
  }
  if (const std::string blocker = textOf(row, "blockPersonId");
      shooter.isPlayer() && !NbaLiveRoster::isNobody(blocker))
    m_blocked[blocker] = static_cast<int>(m_game.events.size());
  add(row, std::move(shot));
  takeAssist(row, shooter);
}

// It has no row of its own.
void Plays::takeAssist(const Json& row, const Doer& shooter) {
  const std::string helper = textOf(row, "assistPersonId");
  if (!shooter.isPlayer() || !says(row, "shotResult", "Made") || NbaLiveRoster::isNobody(helper))
    return;
  ForeignEvent assist = eventOf(
      row, EventCode::SA, m_roster.player(helper, shooter.team, textOf(row, "assistPlayerNameInitial")));
  assist.belongsTo = static_cast<int>(m_game.events.size()) - 1;
  add(row, std::move(assist));
}

void Plays::takeFreeThrow(const Json& row) {
  const Doer shooter = doerOf(row);
  ForeignEvent one = eventOf(row, EventCode::GFT, shooter);
  const std::string subType = textOf(row, "subType"); // "1 of 2"
  constexpr std::string_view kOf = " of ";
  if (const std::size_t at = subType.find(kOf); at != std::string::npos) {
    const int number = Module1::wholeNumber(subType.substr(0, at));
    const int all = Module1::wholeNumber(subType.substr(at + kOf.size()));
    constexpr int kMostThrows = 9;
    if (number > 0 && number <= all && all <= kMostThrows) {
      one.numberOfThrow = number;
      one.ofThrows = all;
    }
  }
  add(row, std::move(one));
  takeAssist(row, shooter); // the league has none of these, others do
}

void Plays::takeRebound(const Json& row) {
  const bool isOffensive = says(row, "subType", "offensive");
  if (!isOffensive && !says(row, "subType", "defensive")) {
    passOver(row);
    return;
  }
  const Doer doer = doerOf(row);
  const EventCode ofPlayer = isOffensive ? EventCode::SOR : EventCode::SDR;
  const EventCode ofTeam = isOffensive ? EventCode::XOR : EventCode::XDR;
  ForeignEvent rebound =
      eventOf(row, doer.isPlayer() ? ofPlayer : ofTeam, doer.isPlayer() ? doer : Doer{teamOf(row)});
  if (const auto shot = m_shots.find(textOf(row, "shotActionNumber")); shot != m_shots.end())
    rebound.belongsTo = shot->second;
  add(row, std::move(rebound));
}

void Plays::takeTurnover(const Json& row) {
  const Doer doer = doerOf(row);
  ForeignEvent turnover = eventOf(row, doer.isPlayer() ? EventCode::STO : EventCode::XTV,
                                  doer.isPlayer() ? doer : Doer{teamOf(row)});
  if (const std::string subType = textOf(row, "subType"); !subType.empty())
    turnover.detail = detailOf(kTurnoverWords, subType);
  const std::string thief = textOf(row, "stealPersonId");
  if (turnover.doer.team && !NbaLiveRoster::isNobody(thief))
    m_stolen[thief] = static_cast<int>(m_game.events.size());
  add(row, std::move(turnover));
}

void Plays::takeSteal(const Json& row) {
  ForeignEvent steal = eventOf(row, EventCode::SST, doerOf(row));
  steal.belongsTo = partnerOf(m_stolen, row);
  add(row, std::move(steal));
}

void Plays::takeBlock(const Json& row) {
  ForeignEvent block = eventOf(row, EventCode::SBS, doerOf(row));
  block.belongsTo = partnerOf(m_blocked, row);
  if (block.belongsTo >= 0)
    block.other = m_game.events[static_cast<std::size_t>(block.belongsTo)].doer;
  add(row, std::move(block));
}

void Plays::takeFoul(const Json& row) {
  if (says(row, "subType", "technical")) {
    takeTechnical(row);
    return;
  }
  const Doer doer = doerOf(row);
  ForeignEvent foul = eventOf(row, EventCode::SPF, doer);
  foul.detail = says(row, "subType", "offensive") ? "O" : detailOf(kFoulWords, textOf(row, "descriptor"));
  foul.freeThrows = throwsAwarded(row);
  if (doer.isPlayer())
    foul.other = m_roster.player(textOf(row, "foulDrawnPersonId"), opponentOf(doer.team),
                                 textOf(row, "foulDrawnPlayerName"));
  add(row, std::move(foul));
}

// What a team is punished for (three seconds in defence, delay) names a player at times, and is not his;
// whoever is no player is the coach.
void Plays::takeTechnical(const Json& row) {
  const std::string person = textOf(row, "personId");
  const std::string descriptor = textOf(row, "descriptor");
  const bool isOfTeam = descriptor.starts_with("defensive-3") || descriptor.starts_with("delay");
  const bool isOfPlayer = !isOfTeam && m_roster.isListed(person);
  ForeignEvent foul = eventOf(row, isOfPlayer ? EventCode::STF : EventCode::XCF,
                              isOfPlayer ? doerOf(row) : Doer{teamOf(row)});
  if (!isOfPlayer)
    foul.detail = isOfTeam || NbaLiveRoster::isNobody(person) ? "B" : "C";
  foul.freeThrows = throwsAwarded(row);
  if (isOfPlayer)
    foul.other = m_roster.player(textOf(row, "foulDrawnPersonId"), opponentOf(foul.doer.team),
                                 textOf(row, "foulDrawnPlayerName"));
  add(row, std::move(foul));
}

// A challenge is one only where it is lost, which no row says.
void Plays::takeTimeOut(const Json& row) {
  if (says(row, "subType", "challenge")) {
    passOver(row);
    return;
  }
  const bool isShort = says(row, "subType", "short");
  ForeignEvent timeOut = eventOf(row, EventCode::XTO, Doer{teamOf(row)});
  timeOut.detail = !timeOut.doer.team ? "MEDIA" : isShort ? "SHORT" : "FULL";
  m_game.events.push_back(std::move(timeOut));
}

void Plays::takeJumpBall(const Json& row) {
  const std::optional<Side> team = teamOf(row); // who has the ball now
  const Doer winner =
      m_roster.player(textOf(row, "jumpBallWonPersonId"), team, textOf(row, "jumpBallWonPlayerName"));
  const Doer loser = m_roster.player(textOf(row, "jumpBallLostPersonId"), opponentOf(team),
                                     textOf(row, "jumpBallLostPlayerName"));
  if (!winner.isPlayer() || !loser.isPlayer() || winner.team == loser.team) {
    passOver(row);
    return;
  }
  ForeignEvent jump = eventOf(row, EventCode::XJB, winner.team == Side::Visitor ? winner : loser);
  jump.other = winner.team == Side::Visitor ? loser : winner;
  jump.wonBy = winner.team;
  add(row, std::move(jump));
}

void Plays::takeSubstitution(const Json& row) {
  const bool comes = says(row, "subType", "in");
  ForeignEvent change = eventOf(row, EventCode::Unknown, doerOf(row));
  change.kind = comes ? ForeignKind::In : ForeignKind::Out;
  if ((comes || says(row, "subType", "out")) && change.doer.isPlayer())
    m_game.events.push_back(std::move(change));
  else
    passOver(row);
}

void Plays::takePeriod(const Json& row) {
  const bool isEnd = says(row, "subType", "end");
  if (!isEnd && !says(row, "subType", "start")) {
    passOver(row);
    return;
  }
  ForeignEvent edge = eventOf(row, EventCode::Unknown, {});
  edge.kind = isEnd ? ForeignKind::PeriodEnd : ForeignKind::PeriodStart;
  if (isEnd)
    m_endedPeriod = m_period;
  m_game.events.push_back(std::move(edge));
}

// The league's own rules, unless the first period began at another clock: others use the form too.
void readRules(ForeignGame& game) {
  constexpr int kLeagueMinutes = 12;
  game.minutes = kLeagueMinutes;
  for (const ForeignEvent& event : game.events) {
    const int minutes = (event.centiseconds + kMinute - 1) / kMinute;
    if (event.kind != ForeignKind::PeriodStart || minutes < 1)
      continue;
    if (event.period == 1)
      game.minutes = minutes;
    else if (event.period > game.periods)
      game.overtimeMinutes = minutes;
  }
  if (game.minutes == kLeagueMinutes && game.periods == 4) {
    game.ruleSet = "NBA";
    game.threePointRadius = 724;
    game.threePointCorner = 671;
  }
}

void tellWhatIsMissing(const Json* box, const Plays& plays, ForeignGame& game) {
  if (box == nullptr)
    game.notes.push_back({Text::NbaLiveNoBox});
  else if (isFinalBox(*box) && !game.isFinished)
    game.notes.push_back({Text::NbaLiveCutOff, std::to_string(plays.endedPeriod())});
  if (const auto heaves = game.unknown.find("heave"); heaves != game.unknown.end())
    game.notes.push_back({Text::NbaLiveHeaves, std::to_string(heaves->second)});
}

std::string firstDay(const ForeignGame& game) {
  const auto timed =
      std::ranges::find_if(game.events, [](const ForeignEvent& event) { return event.wallClock > 0; });
  return timed == game.events.end() ? std::string() : dayOf(timed->wallClock);
}

} // namespace

std::optional<SourcePart> recogniseNbaLive(const Json& file) {
  const Json& game = member(file, "game");
  SourcePart part{.format = GameFormat::NbaLive, .game = textOf(game, "gameId")};
  if (part.game.empty())
    return std::nullopt;
  if (member(game, "actions").is_array())
    part.role = SourceRole::PlayByPlay;
  else if (member(game, "homeTeam").is_object() && member(game, "awayTeam").is_object())
    part.role = SourceRole::Box;
  else
    return std::nullopt;
  return part;
}

ForeignGame readNbaLive(const Json& playByPlay, const Json* box) {
  ForeignGame game;
  game.format = GameFormat::NbaLive;
  game.id = textOf(member(playByPlay, "game"), "gameId");
  const Rows rows = rowsInOrder(playByPlay);
  if (rows.empty())
    throw UnreadableGame({Text::NbaLiveNoPlays, game.id});
  if (box != nullptr) {
    if (const std::string other = textOf(member(*box, "game"), "gameId"); other != game.id)
      throw UnreadableGame({Text::NbaLiveTwoGames, game.id, other});
    readNbaLiveBox(*box, game);
  } else {
    listThoseInRows(rows, game);
  }
  Plays plays(game);
  for (const Json* row : rows)
    plays.take(*row);
  const bool endedRegularly = plays.endedPeriod() >= game.periods;
  game.isFinished = plays.hasEnd() || (box != nullptr && isFinalBox(*box) && endedRegularly);
  if (game.date.empty())
    game.date = firstDay(game);
  readRules(game);
  tellWhatIsMissing(box, plays, game);
  return game;
}

} // namespace hooptab
