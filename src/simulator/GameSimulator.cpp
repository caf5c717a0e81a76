#include "simulator/GameSimulator.h"

#include "storage/Module1.h"

#include <algorithm>
#include <cstdlib>

namespace hooptab {

namespace {

constexpr int kHomeAdvantage = 8;

} // namespace

GameSimulator::GameSimulator(const SampleTeam& visitors, const SampleTeam& home, std::uint64_t seed)
    : m_random(seed), m_sides{
                          SimulatedSide(visitors, home.personalFoulLimit, home.technicalFoulLimit, m_random),
                          SimulatedSide(home, home.personalFoulLimit, home.technicalFoulLimit, m_random)} {
  GameDetails& details = m_game.details;
  details.version = GameFile::kVersion;
  const PerSide<const SampleTeam*> teams = {&visitors, &home};
  for (const Side team : kSides) {
    details.teamId[team] = teams[team]->id;
    details.teamColour[team] = teams[team]->colour;
    details.abbreviation[team] = teams[team]->abbreviation;
    details.category[team] = teams[team]->category;
    details.name[team] = teams[team]->name;
    m_game.roster[team] = m_sides[team].dressed();
  }
  details.statisticLabel[0] = "U1-Deflections";
  details.statisticLabel[1] = "U2-Charges";
  details.periods = kPeriods;
  details.minutesPerPeriod = kMinutesPerPeriod;
  details.bonus = home.bonus; // the home team's rules, as a new game takes them
  details.personalFoulLimit = home.personalFoulLimit;
  details.technicalFoulLimit = home.technicalFoulLimit;
  details.nextEventNumber = 1;
  m_countsUserStatistics = m_random.chance(600);
}

SimulatedGame GameSimulator::play(std::optional<Interruption> interruption) {
  m_interruption = interruption;
  m_firstWithBall = *sideOf(m_random.below(2));
  while (!m_isInterrupted && (m_period < kPeriods || m_points[Side::Visitor] == m_points[Side::Home]))
    playPeriod();
  m_game.details.isFinished = !m_isInterrupted;
  return std::move(m_game);
}

void GameSimulator::playPeriod() {
  ++m_period;
  const bool isOvertime = m_period > kPeriods;
  m_game.periods.emplace_back();
  m_clock = 60 * (isOvertime ? kOvertimeMinutes : kMinutesPerPeriod);
  if (m_period == kPeriods + 1)
    m_game.details.keepsBonus = m_random.chance(750);
  if (!isOvertime || !m_game.details.keepsBonus)
    m_teamFouls = {};

  if (m_period == 1) {
    record(stopText("IN-", "IN-"));
    recordLists();
  } else {
    constexpr int kBreak = 150;
    for (SimulatedSide& side : m_sides)
      side.rest(m_period == 3 ? kBreak * 3 : kBreak);
    deadBall();
  }
  restart();
  m_offense = m_period % 2 == 1 ? m_firstWithBall : otherSide(m_firstWithBall);
  while (m_clock > 0 && !m_isInterrupted) {
    playPossession();
    m_isInterrupted =
        m_interruption && m_period == m_interruption->period && m_clock <= m_interruption->clockSeconds;
  }
  whistle();
}

int GameSimulator::possessionSeconds() {
  if (m_offensiveRebounder)
    return m_random.between(1, 9);
  const int lead = m_points[m_offense] - m_points[otherSide(m_offense)];
  if (isLate() && m_clock < 60 && lead < 0)
    return m_random.between(4, 11);
  if (m_random.chance(140)) // a fast break
    return m_random.between(3, 7);
  // Two draws make the middle likelier than the ends.
  const int build = m_random.between(4, 12);
  return build + m_random.between(3, 12);
}

void GameSimulator::playPossession() {
  m_offensiveRebounder.reset();
  Next next = Next::SameTeam;
  while (next == Next::SameTeam && m_clock > 0) {
    const int seconds = possessionSeconds();
    if (seconds < m_clock) {
      advance(seconds);
      if (m_countsUserStatistics && m_random.chance(130))
        countUserStatistic();
      next = playAction();
      continue;
    }
    // The last seconds: a shot as they run out, or none.
    if (m_random.chance(700)) {
      const std::size_t shooter = offense().pick(&PlayerTraits::shooting, m_random);
      advance(m_clock - m_random.below(std::min(m_clock, 3)));
      Shot last = m_random.chance(600) ? chooseThree() : chooseShot(shooter);
      last.percentage /= 2;
      const bool made = m_random.chance(last.percentage);
      shot(shooter, last, made);
    }
    advance(m_clock);
  }
  m_offense = otherSide(m_offense);
}

GameSimulator::Next GameSimulator::playAction() {
  if (const auto rebounder = m_offensiveRebounder; rebounder && m_random.chance(360)) {
    m_offensiveRebounder.reset();
    return attempt(*rebounder, {EventCode::GPB, std::nullopt, 525});
  }
  m_offensiveRebounder.reset();

  const int lead = m_points[m_offense] - m_points[otherSide(m_offense)];
  if (isLate() && m_clock < 40 && lead > 0 && lead < 9 && m_random.chance(700))
    return defensiveFoul(); // on purpose, to stop the clock

  // A turnover, a foul of the defense, one of the offense, a shot.
  constexpr std::array kWeights = {130, 108, 20, 742};
  switch (m_random.weighted(kWeights)) {
  case 0: return turnOver();
  case 1: return defensiveFoul();
  case 2: return offensiveFoul();
  default: break;
  }
  const std::size_t shooter = offense().pick(&PlayerTraits::shooting, m_random);
  return attempt(shooter, chooseShot(shooter));
}

GameSimulator::Next GameSimulator::turnOver() {
  action(EventCode::STO, m_offense, offense().pick(&PlayerTraits::losing, m_random));
  if (m_random.chance(520)) {
    advance(m_random.below(3));
    action(EventCode::SST, otherSide(m_offense), defense().pick(&PlayerTraits::stealing, m_random));
  } else if (m_clock > 0) {
    whistle();
    deadBall();
    restart();
  }
  return Next::OtherTeam;
}

GameSimulator::Next GameSimulator::defensiveFoul() {
  const std::optional<std::size_t> fouler = defense().pickFouler(m_random);
  if (!fouler)
    return turnOver();
  const std::size_t fouled = offense().pick(&PlayerTraits::shooting, m_random);
  if (personalFoul(otherSide(m_offense), *fouler))
    return shootFreeThrows(fouled, 2);
  deadBall();
  restart();
  return Next::SameTeam;
}

GameSimulator::Next GameSimulator::offensiveFoul() {
  const std::optional<std::size_t> fouler = offense().pickFouler(m_random);
  if (!fouler)
    return turnOver();
  personalFoul(m_offense, *fouler);
  action(EventCode::STO, m_offense, *fouler);
  deadBall();
  restart();
  return Next::OtherTeam;
}

GameSimulator::Shot GameSimulator::chooseThree() {
  constexpr std::array kWeights = {28, 45, 27};
  constexpr std::array kAreas = {ShotArea::Corner, ShotArea::Wing, ShotArea::Top};
  constexpr std::array kPercentages = {345, 315, 305};
  const std::size_t area = m_random.weighted(kWeights);
  return {EventCode::GF3, shotPlace(kAreas[area], m_random), kPercentages[area]};
}

GameSimulator::Shot GameSimulator::chooseShot(std::size_t shooter) {
  const PlayerTraits& traits = offense().player(shooter).traits;
  if (m_random.chance(traits.threeShare))
    return chooseThree();
  const int midRange = std::max(1000 - traits.layupShare - traits.dunkShare - traits.paintShare, 0);
  const std::array weights = {traits.layupShare, traits.dunkShare, traits.paintShare, midRange};
  switch (m_random.weighted(weights)) {
  case 0: return {m_random.chance(600) ? EventCode::GLD : EventCode::GLG, std::nullopt, 550};
  case 1: return {EventCode::GDK, std::nullopt, 860};
  case 2: return {EventCode::GFG, shotPlace(ShotArea::Paint, m_random), 450};
  default: return {EventCode::GFG, shotPlace(ShotArea::MidRange, m_random), 365};
  }
}

GameSimulator::Next GameSimulator::attempt(std::size_t shooter, const Shot& attempted) {
  const int home = m_offense == Side::Home ? kHomeAdvantage : 0;
  const int percentage =
      attempted.percentage + offense().player(shooter).traits.accuracy + offense().accuracy() + home;
  const bool isThree = attempted.code == EventCode::GF3;
  const bool made = m_random.chance(percentage);
  if (made) {
    shot(shooter, attempted, true);
    return afterMade(shooter, attempted);
  }
  // A shot that is missed because of a foul is no attempt.
  if (m_random.chance(isThree ? 20 : 185)) {
    if (const std::optional<std::size_t> fouler = defense().pickFouler(m_random)) {
      personalFoul(otherSide(m_offense), *fouler);
      return shootFreeThrows(shooter, isThree ? 3 : 2);
    }
  }
  shot(shooter, attempted, false);
  if (m_random.chance(isThree ? 12 : 105))
    action(EventCode::SBS, otherSide(m_offense), defense().pick(&PlayerTraits::blocking, m_random));
  return rebound();
}

GameSimulator::Next GameSimulator::afterMade(std::size_t shooter, const Shot& made) {
  const int assisted = made.code == EventCode::GF3 ? 780 : made.code == EventCode::GPB ? 60 : 540;
  if (m_random.chance(assisted)) {
    if (m_random.chance(250)) // entered a moment later
      advance(m_random.between(1, 2));
    action(EventCode::SA, m_offense, offense().pick(&PlayerTraits::passing, m_random, shooter));
  }
  if (m_clock == 0)
    return Next::OtherTeam;
  if (m_random.chance(made.code == EventCode::GF3 ? 5 : 55)) {
    if (const std::optional<std::size_t> fouler = defense().pickFouler(m_random)) {
      personalFoul(otherSide(m_offense), *fouler);
      return shootFreeThrows(shooter, 1);
    }
  }
  if (m_random.chance(60)) { // a time-out
    whistle();
    deadBall();
    restart();
  } else if (m_random.chance(15)) {
    changePlayersWhileTheClockRuns();
  }
  return Next::OtherTeam;
}

GameSimulator::Next GameSimulator::rebound() {
  advance(m_random.below(4));
  if (m_clock == 0)
    return Next::OtherTeam;
  if (m_random.chance(70)) { // out of bounds: nobody's rebound
    whistle();
    deadBall();
    restart();
    return m_random.chance(400) ? Next::SameTeam : Next::OtherTeam;
  }
  if (m_random.chance(265)) {
    m_offensiveRebounder = offense().pick(&PlayerTraits::rebounding, m_random);
    action(EventCode::SOR, m_offense, *m_offensiveRebounder);
    return Next::SameTeam;
  }
  action(EventCode::SDR, otherSide(m_offense), defense().pick(&PlayerTraits::rebounding, m_random));
  return Next::OtherTeam;
}

GameSimulator::Next GameSimulator::shootFreeThrows(std::size_t shooter, int count) {
  deadBall(shooter);
  if (!offense().isOnCourt(shooter)) // sent out for a technical foul meanwhile
    shooter = offense().bestFreeThrower();
  const int percentage = offense().player(shooter).traits.freeThrow;
  bool made = false;
  for (int i = 0; i < count; ++i) {
    made = m_random.chance(percentage);
    shot(shooter, {EventCode::GFT, std::nullopt, percentage}, made);
  }
  restart();
  return made ? Next::OtherTeam : rebound();
}

void GameSimulator::advance(int seconds) {
  const int played = std::min(seconds, m_clock);
  m_clock -= played;
  for (SimulatedSide& side : m_sides)
    side.play(played);
}

void GameSimulator::whistle() {
  if (m_clockRuns)
    recordLists();
  m_clockRuns = false;
}

void GameSimulator::restart() {
  record(startText());
  m_clockRuns = true;
}

bool GameSimulator::isDecisive() const {
  return isLate() && m_clock < 240 && std::abs(m_points[Side::Visitor] - m_points[Side::Home]) < 12;
}

void GameSimulator::deadBall(std::optional<std::size_t> kept) {
  if (m_random.chance(8))
    technicalFoul();
  bool hasChanged = false;
  for (const Side team : kSides) {
    const std::optional<std::size_t> keptHere = team == m_offense ? kept : std::nullopt;
    hasChanged = m_sides[team].substitute(keptHere, isDecisive()) || hasChanged;
  }
  if (hasChanged)
    recordLists();
}

void GameSimulator::technicalFoul() {
  const Side team = *sideOf(m_random.below(2));
  const std::optional<std::size_t> player = m_sides[team].pickForTechnical(m_random);
  if (!player)
    return;
  m_sides[team].addTechnicalFoul(*player);
  ++m_teamFouls[team];
  action(EventCode::STF, team, *player);

  const Side offenseBefore = m_offense;
  m_offense = otherSide(team);
  const std::size_t shooter = offense().bestFreeThrower();
  const int percentage = offense().player(shooter).traits.freeThrow;
  shot(shooter, {EventCode::GFT, std::nullopt, percentage}, m_random.chance(percentage));
  m_offense = offenseBefore;
}

void GameSimulator::changePlayersWhileTheClockRuns() {
  bool hasChanged = false;
  for (SimulatedSide& side : m_sides)
    hasChanged = side.substitute(std::nullopt, isDecisive()) || hasChanged;
  if (!hasChanged)
    return;
  recordLists();
  record(startText());
}

bool GameSimulator::personalFoul(Side team, std::size_t player) {
  // The whistle stops the clock; some fouls are entered before the statistician stops it too.
  const bool isEnteredFirst = m_random.chance(400);
  if (!isEnteredFirst)
    whistle();
  action(EventCode::SPF, team, player);
  m_sides[team].addPersonalFoul(player);
  ++m_teamFouls[team];
  if (isEnteredFirst)
    whistle();
  return m_teamFouls[team] >= m_game.details.bonus;
}

void GameSimulator::shot(std::size_t player, const Shot& shot, bool made) {
  std::optional<std::pair<double, double>> place;
  if (shot.place)
    place = {shot.place->x, shot.place->y};
  const Side team = m_offense;
  const std::string& jersey = offense().player(player).jersey;
  if (m_random.chance(6)) // the wrong button, taken back at once
    put("E" + Module1::clockText(m_clock) + eventText(shot.code, !made, team, jersey, place));
  record(eventText(shot.code, made, team, jersey, place));
  if (made)
    m_points[m_offense] += kindOf(shot.code)->points;
}

void GameSimulator::action(EventCode code, Side team, std::size_t player) {
  if (m_random.chance(6)) { // the wrong player
    const std::size_t slot = static_cast<std::size_t>(m_random.below(5));
    const std::string& wrong = m_sides[team].player(m_sides[team].onCourt()[slot]).jersey;
    put("E" + Module1::clockText(m_clock) + eventText(code, false, team, wrong));
  }
  record(eventText(code, false, team, m_sides[team].player(player).jersey));
}

void GameSimulator::countUserStatistic() {
  const Side team = m_random.chance(800) ? otherSide(m_offense) : m_offense;
  const EventCode code = m_random.chance(850) ? EventCode::SU1 : EventCode::SU2;
  action(code, team, m_sides[team].pick(&PlayerTraits::stealing, m_random));
}

void GameSimulator::recordLists() {
  record(stopText(m_sides[Side::Visitor].list(), m_sides[Side::Home].list()));
}

void GameSimulator::record(const std::string& text) {
  put(Module1::clockText(m_clock) + text);
}

void GameSimulator::put(std::string line) {
  m_game.periods.back().emplace_back(std::to_string(m_game.details.nextEventNumber++), std::move(line));
}

} // namespace hooptab
