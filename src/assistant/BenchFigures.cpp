#include "assistant/BenchFigures.h"

#include "game/EventWords.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "recording/LiveFigures.h"
#include "recording/LivePanel.h"
#include "recording/ScoreText.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace hooptab {

namespace {

constexpr std::string_view kBetween = " – ";
constexpr std::string_view kNothing = "–";

// How much a factor weighs in what a game is won by: D. Oliver, "Basketball on Paper" (2004).
struct WeighedFactor {
  std::string_view rate;
  double weight;
};
constexpr std::array kFactors = {WeighedFactor{"eFG", 0.40}, WeighedFactor{"TOrate", 0.25},
                                 WeighedFactor{"ORpct", 0.20}, WeighedFactor{"FTrate", 0.15}};

class Bench {
 public:
  Bench(const LiveMoment& game, const BenchRecord& record, Side us, const Texts& texts)
      : m_game(game), m_record(record), m_us(us), m_them(otherSide(us)), m_texts(texts),
        m_words(game.game(), texts) {}

  BenchFigures figures() const {
    BenchFigures figures;
    figures.us = team(m_us);
    figures.them = team(m_them);
    figures.clock = clockShown(m_game);
    figures.period = period(m_game.period());
    figures.isRunning = m_game.phase() == LiveGame::Phase::Running;
    figures.run = run();
    figures.sinceTimeOut = sinceTimeOut();
    for (int entry = 1; entry <= kMostPlayers; ++entry) {
      if (const RosterPlayer* listed = roster(m_us).player(entry); listed != nullptr)
        (isOnCourt(m_us, entry) ? figures.five : figures.bench).push_back(player(m_us, entry, *listed));
      if (const RosterPlayer* listed = roster(m_them).player(entry);
          listed != nullptr && isOnCourt(m_them, entry))
        figures.theirFive.push_back(player(m_them, entry, *listed));
    }
    figures.foulTrouble = foulTrouble(figures.five, figures.bench);
    figures.thisFive = thisFive();
    setFactors(figures);
    setFives(figures);
    return figures;
  }

 private:
  [[nodiscard]] const Game& game() const { return m_game.game(); }
  [[nodiscard]] const Roster& roster(Side team) const { return game().roster[team]; }
  [[nodiscard]] bool isOnCourt(Side team, int entry) const {
    const GameState& state = m_game.state();
    const auto onCourt = std::span(state.onCourt[team]).first(state.onCourtCount[team]);
    return std::ranges::find(onCourt, static_cast<std::uint8_t>(entry)) != onCourt.end();
  }
  [[nodiscard]] std::string period(int number) const {
    return number > game().details.periods ? m_words.periodText(number) : ordinalText(number, m_texts);
  }
  [[nodiscard]] std::string time(int seconds) const {
    return m_game.hasTime() ? Module1::clockText(seconds) : std::string(kNothing);
  }
  [[nodiscard]] std::string net(const std::optional<double>& value) const {
    return value ? signedText(static_cast<int>(std::lround(*value)))
                 : std::string(m_texts.text(Text::FewPossessions));
  }

  [[nodiscard]] BenchFigures::Team team(Side team) const {
    const LiveFigures figures(m_game);
    return {.name = std::string(m_words.team(team)),
            .colour = game().details.teamColour[team],
            .points = m_game.state().points(team),
            .fouls = figures.teamFouls(team),
            .foulWords = hooptab::foulWords(m_game, team, m_texts),
            .isInBonus = figures.isInBonus(team),
            .timeOuts =
                timeOutsOf(game().details, game().events, team, m_game.period(), m_game.clockSeconds())};
  }

  // Ours first, as everywhere here.
  [[nodiscard]] BenchFigures::Tile run() const {
    BenchFigures::Tile tile{.title = std::string(m_texts.text(Text::RunOfPoints))};
    if (!m_record.run) {
      tile.figure = kNothing;
      tile.lines = {std::string(m_texts.text(Text::NoRunNow))};
      return tile;
    }
    const ScoringRun& run = *m_record.run;
    const bool isOurs = run.team == m_us;
    tile.title += " · " + std::string(m_words.team(run.team));
    tile.figure = score(isOurs ? run.points : 0, isOurs ? 0 : run.points);
    if (m_game.hasTime())
      tile.lines.push_back(m_texts.withPlaceholder(
          Text::RunInTime, Module1::clockText(std::max(m_record.secondsOfRun(m_game), 0))));
    constexpr std::size_t kNamed = 2;
    for (std::size_t i = 0; i < std::min(m_record.scorers.size(), kNamed); ++i) {
      const BenchRecord::Scorer& scorer = m_record.scorers[i];
      if (const RosterPlayer* listed = roster(run.team).player(scorer.player); listed != nullptr)
        tile.lines.push_back(listed->jersey + ' ' + familyName(listed->name) + ' ' +
                             std::to_string(scorer.points));
    }
    tile.isAlarm = !isOurs && run.points >= BenchFigures::kAlarmingPoints;
    return tile;
  }

  [[nodiscard]] BenchFigures::Tile sinceTimeOut() const {
    constexpr ShotKinds kField = kAllShotKinds & ~shotKinds({EventCode::GFT});
    const BenchRecord::Since& since = m_record.since;
    const BoxNumbers ours = since.share.numbers(m_us);
    const BoxNumbers theirs = since.share.numbers(m_them);
    const auto shots = [](const BoxNumbers& numbers) {
      return std::to_string(numbers.made(kField)) + '/' + std::to_string(numbers.attempted(kField));
    };
    return {.title = sinceWords(),
            .figure = score(ours.points(), theirs.points()),
            .lines = {std::string(m_texts.text(Text::Shots)) + ' ' + shots(ours) + std::string(kBetween) +
                          shots(theirs),
                      std::string(kindOf(EventCode::STO)->shortName) + ' ' +
                          std::to_string(since.turnovers[m_us]) + std::string(kBetween) +
                          std::to_string(since.turnovers[m_them])},
            .isAlarm = since.period > 0 && theirs.points() - ours.points() >= BenchFigures::kAlarmingPoints};
  }
  // "Since the last time-out (4th 07:48)"
  [[nodiscard]] std::string sinceWords() const {
    const BenchRecord::Since& since = m_record.since;
    return since.period == 0 ? std::string(m_texts.text(Text::SinceBeginning))
                             : std::string(m_texts.text(Text::SinceTimeOut)) + " (" +
                                   moment(since.period, since.clockSeconds) + ')';
  }
  [[nodiscard]] std::string moment(int number, int clockSeconds) const {
    return period(number) + (m_game.hasTime() ? ' ' + Module1::clockText(clockSeconds) : std::string());
  }
  [[nodiscard]] static std::string score(int ours, int theirs) {
    return std::to_string(ours) + "–" + std::to_string(theirs);
  }

  // In trouble is who is out, about to be, or has more fouls than periods were begun.
  [[nodiscard]] BenchFigures::Player player(Side team, int entry, const RosterPlayer& listed) const {
    const auto place = static_cast<std::size_t>(entry);
    const PlayerEntry& counted = m_game.state().players[team][place];
    const LivePanel::FoulMark mark = LivePanel::foulTrouble(m_game, team, entry);
    const int fouls = counted.counters[Counter::PF];
    const std::optional<int> stay = m_record.secondsSinceTurn(m_game, team, entry);
    return {.jersey = listed.jersey,
            .name = familyName(listed.name),
            .fouls = fouls,
            .isInTrouble = mark != LivePanel::FoulMark::None ||
                           (game().details.personalFoulLimit > 0 && fouls > m_game.period()),
            .isOut = mark == LivePanel::FoulMark::Reached,
            .hasPlayed = (static_cast<unsigned>(m_game.state().wereOnCourt[team]) >> place & 1U) != 0,
            .minutes = time(LiveFigures(m_game).secondsOnCourt(team, entry)),
            .plusMinus = m_record.insight.players[team][place].plusMinus(team),
            .points = pointsOf(counted.counters),
            .stay = stay ? Module1::clockText(*stay) : std::string(kNothing),
            .isLong = isOnCourt(team, entry) && stay.value_or(0) >= BenchFigures::kLongStay};
  }

  // Those on court first: of them something can be decided.
  [[nodiscard]] BenchFigures::Tile foulTrouble(const std::vector<BenchFigures::Player>& five,
                                               const std::vector<BenchFigures::Player>& bench) const {
    BenchFigures::Tile tile{.title = std::string(m_texts.text(Text::FoulTrouble))};
    for (const auto* group : {&five, &bench}) {
      for (const BenchFigures::Player& player : *group) {
        if (!player.isInTrouble)
          continue;
        std::string line =
            player.jersey + ' ' + player.name + std::string(kBetween) + std::to_string(player.fouls);
        const Text where = group == &five                                         ? Text::OnCourtWord
                           : player.isOut                                         ? Text::FouledOutWord
                           : player.fouls + 1 == game().details.personalFoulLimit ? Text::OneFoulLeft
                                                                                  : Text::None;
        if (where != Text::None)
          line += " · " + std::string(m_texts.text(where));
        tile.isAlarm = tile.isAlarm || group == &five;
        tile.lines.push_back(std::move(line));
      }
    }
    if (tile.lines.empty())
      tile.lines = {std::string(m_texts.text(Text::NobodyInFoulTrouble))};
    return tile;
  }

  [[nodiscard]] std::string thisFive() const {
    const FivePlay& five = m_record.fives.current[m_us];
    if (five.players == 0)
      return {};
    return std::string(m_texts.text(Text::Together)) + "  " + time(LiveFigures(m_game).secondsOfLine(m_us)) +
           "   +/−  " + signedText(five.plusMinus()) + "   " +
           m_texts.withPlaceholder(Text::NetWord, net(five.net));
  }

  // Of what came after a time-out once there is enough of it to tell: until then what the game says.
  void setFactors(BenchFigures& figures) const {
    const BenchRecord::Since& since = m_record.since;
    const bool isSince =
        since.period > 0 && std::ranges::min(since.share.possessions) >= Fives::kFewestPossessions;
    const CourtShare& share = isSince ? since.share : m_record.insight.whole;
    const std::string now =
        since.period == m_game.period() ? clockShown(m_game) : moment(m_game.period(), m_game.clockSeconds());
    figures.factorsOf = isSince ? withPlaceholders(m_texts.text(Text::StretchFromTo),
                                                   moment(since.period, since.clockSeconds), now)
                                : std::string(m_texts.text(Text::WholeGame));
    double most = 0;
    std::optional<std::size_t> costly;
    for (const WeighedFactor& weighed : kFactors) {
      const Rate& rate = rateNamed(weighed.rate);
      const double unit = rate.kind == RateKind::Share ? 1 : 0.01;
      const auto valueOf = [&](Side team) { return rate.value(RateBasis::ofAll(team, share)); };
      const auto ours = valueOf(m_us);
      const auto theirs = valueOf(m_them);
      const auto text = [&](const std::optional<double>& value) {
        return value ? std::to_string(std::lround(100 * unit * *value)) : std::string(kNothing);
      };
      figures.factors.push_back({.name = std::string(m_texts.text(rate.words)),
                                 .ours = text(ours),
                                 .theirs = text(theirs),
                                 .ourLength = std::clamp(unit * ours.value_or(0), 0.0, 1.0),
                                 .theirLength = std::clamp(unit * theirs.value_or(0), 0.0, 1.0)});
      if (!ours || !theirs)
        continue;
      const double cost = weighed.weight * unit * (rate.isBetterLow ? *ours - *theirs : *theirs - *ours);
      if (cost > most) {
        most = cost;
        costly = figures.factors.size() - 1;
      }
    }
    if (costly)
      figures.factors[*costly].costsMost = true;
  }

  void setFives(BenchFigures& figures) const {
    const FivePlay& now = m_record.fives.current[m_us];
    std::vector<FivePlay> others = m_record.fives.ranked[m_us];
    std::erase_if(others, [&](const FivePlay& play) { return play.jerseys == now.jerseys; });
    const auto add = [&](const FivePlay& play, int seconds, bool isNow) {
      figures.fives.push_back(
          {play.jerseys, time(seconds), play.plusMinus(), net(play.net), play.net.has_value(), isNow});
    };
    for (std::size_t rank = 0; rank < others.size(); ++rank) {
      if (rank < BenchFigures::kBestAndWorst || rank + BenchFigures::kBestAndWorst >= others.size())
        add(others[rank], others[rank].seconds, false);
    }
    if (now.players != 0)
      add(now, LiveFigures(m_game).secondsOfLine(m_us), true);
  }

  LiveMoment m_game;
  const BenchRecord& m_record;
  Side m_us;
  Side m_them;
  const Texts& m_texts;
  EventWords m_words;
};

} // namespace

BenchFigures BenchFigures::of(const LiveMoment& game, const BenchRecord& record, Side us,
                              const Texts& texts) {
  return Bench(game, record, us, texts).figures();
}

} // namespace hooptab
