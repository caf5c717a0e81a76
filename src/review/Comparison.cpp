#include "review/Comparison.h"

#include "insight/SignedText.h"
#include "review/CompactBox.h"
#include "review/ShownGame.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cctype>

namespace hooptab {

namespace {

constexpr double kRoomForCounts = 1.25;      // times the larger
constexpr std::string_view kUsage = "usage"; // neither more of it is better nor less

class Rows {
 public:
  explicit Rows(const Texts& texts) : m_texts(texts) {}

  void addRate(const Rate& rate, const RateBasis& left, const RateBasis& right) {
    constexpr double kFullRate = 100;
    PerSide<std::optional<double>> values = {};
    values[Side::Visitor] = rate.value(left);
    values[Side::Home] = rate.value(right);
    ComparisonRow& row = begin(rate.words);
    if (rate.tip != Text::None)
      row.tip = m_texts.text(rate.tip);
    for (const Side side : kSides) {
      row.text[side] = withWideMinus(rateText(rate, values[side]));
      const double shown = values[side].value_or(0) * (rate.kind == RateKind::Share ? kFullRate : 1);
      // Points for a hundred possessions and the like go beyond a hundred.
      row.share[side] = rate.kind == RateKind::Share || isOfHundred(rate) ? shown / kFullRate : shown;
    }
    if (rate.kind == RateKind::Number && !isOfHundred(rate))
      scaleCounts(row);
    limit(row);
    if (values[Side::Visitor] && values[Side::Home] && rate.name != kUsage)
      setBetter(row, *values[Side::Visitor], *values[Side::Home], rate.isBetterLow);
  }
  enum class Better { More, Less, Neither };
  void addCount(Text words, int left, int right, Better better = Better::More) {
    addNumber(words, left, right, withWideMinus(std::to_string(left)), withWideMinus(std::to_string(right)),
              better);
  }
  void addTime(Text words, int left, int right) {
    addNumber(words, left, right, Module1::clockText(left), Module1::clockText(right), Better::Neither);
  }
  void addMargin(Text words, int left, int right) {
    addNumber(words, left, right, signedText(left), signedText(right), Better::More);
  }
  void beginGroup() { m_beginsGroup = true; }
  void addTitle(std::string words) {
    ComparisonRow& row = m_rows.emplace_back();
    row.words = std::move(words);
    row.beginsGroup = row.isTitle = true;
  }
  std::vector<ComparisonRow> take() { return std::move(m_rows); }

 private:
  // For each hundred of something of which there cannot be much more.
  static bool isOfHundred(const Rate& rate) { return rate.name == "TOrate" || rate.name == "FTrate"; }

  ComparisonRow& begin(Text words) {
    ComparisonRow& row = m_rows.emplace_back();
    row.words = m_texts.text(words);
    if (!row.words.empty()) // kinds of events are written small
      row.words.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(row.words.front())));
    row.beginsGroup = std::exchange(m_beginsGroup, false);
    return row;
  }
  void addNumber(Text words, int left, int right, std::string leftText, std::string rightText,
                 Better better) {
    ComparisonRow& row = begin(words);
    row.text[Side::Visitor] = std::move(leftText);
    row.text[Side::Home] = std::move(rightText);
    row.share[Side::Visitor] = left;
    row.share[Side::Home] = right;
    scaleCounts(row);
    limit(row);
    if (better != Better::Neither)
      setBetter(row, left, right, better == Better::Less);
  }
  // What is below nothing has no bar.
  static void scaleCounts(ComparisonRow& row) {
    const double larger = std::max(row.share[Side::Visitor], row.share[Side::Home]);
    for (const Side side : kSides)
      row.share[side] = larger > 0 ? row.share[side] / (kRoomForCounts * larger) : 0;
  }
  static void limit(ComparisonRow& row) {
    for (const Side side : kSides)
      row.share[side] = std::clamp(row.share[side], 0.0, 1.0);
  }
  static void setBetter(ComparisonRow& row, double left, double right, bool isBetterLow) {
    if (row.text[Side::Visitor] != row.text[Side::Home])
      row.better = (left > right) != isBetterLow ? Side::Visitor : Side::Home;
  }

  const Texts& m_texts;
  std::vector<ComparisonRow> m_rows;
  bool m_beginsGroup = false;
};

} // namespace

std::vector<ComparisonRow> compareTeams(const GameInsight& insight, const Texts& texts) {
  const RateBasis left = RateBasis::ofAll(Side::Visitor, insight.whole);
  const RateBasis right = RateBasis::ofAll(Side::Home, insight.whole);
  Rows rows(texts);
  for (const char* factor : {"eFG", "TOrate", "ORpct", "FTrate"})
    rows.addRate(rateNamed(factor), left, right);
  rows.beginGroup();
  rows.addRate(rateNamed("F2pct"), left, right);
  rows.addRate(rateNamed("F3pct"), left, right);
  rows.addCount(Text::TotalRebounds, left.own.rebounds(), right.own.rebounds());
  if (!insight.isFromEvents)
    return rows.take();
  const PointOrigins& visitors = insight.origins[Side::Visitor];
  const PointOrigins& home = insight.origins[Side::Home];
  rows.addCount(Text::InThePaint, visitors.paint, home.paint);
  if (visitors.bench && home.bench)
    rows.addCount(Text::FromTheBench, *visitors.bench, *home.bench);
  rows.addCount(Text::FromTurnovers, visitors.fromTurnovers, home.fromTurnovers);
  rows.addCount(Text::SecondChance, visitors.secondChance, home.secondChance);
  if (visitors.fastBreak && home.fastBreak)
    rows.addCount(Text::FastBreakPoints, *visitors.fastBreak, *home.fastBreak);
  rows.addCount(Text::QuickPoints, visitors.quick, home.quick);
  return rows.take();
}

std::vector<ComparisonRow> compareClutch(const GameInsight& insight, const GameDetails& details,
                                         const Texts& texts) {
  const CourtShare& clutch = insight.clutch;
  const bool canBeKnown = insight.isFromEvents && details.minutesPerPeriod > 0;
  if (!canBeKnown || (clutch.isEmpty() && !details.isFinished))
    return {};
  Rows rows(texts);
  const std::string title(texts.text(Text::ClutchTitle));
  if (clutch.isEmpty()) {
    rows.addTitle(title + ": " + std::string(texts.text(Text::ClutchNone)));
    return rows.take();
  }
  rows.addTitle(title + " · " + Module1::clockText(clutch.seconds));
  const RateBasis left = RateBasis::ofAll(Side::Visitor, clutch);
  const RateBasis right = RateBasis::ofAll(Side::Home, clutch);
  rows.addCount(Text::PointsScored, left.own.points(), right.own.points());
  rows.addRate(rateNamed("eFG"), left, right);
  rows.addCount(Text::TotalRebounds, left.own.rebounds(), right.own.rebounds());
  rows.addCount(kindOf(EventCode::STO)->wordsText, left.own.counters[Counter::TO],
                right.own.counters[Counter::TO], Rows::Better::Less);
  return rows.take();
}

std::vector<ComparisonRow> comparePlayers(const RateBasis& left, const RateBasis& right, const Texts& texts) {
  Rows rows(texts);
  const auto count = [&](Counter counter, EventCode code, Rows::Better better = Rows::Better::More) {
    rows.addCount(kindOf(code)->wordsText, left.own.counters[counter], right.own.counters[counter], better);
  };
  rows.addTime(Text::TimeToolTip, left.own.seconds, right.own.seconds);
  rows.addCount(Text::PointsScored, left.own.points(), right.own.points());
  rows.addCount(Text::TotalRebounds, left.own.rebounds(), right.own.rebounds());
  count(Counter::Ast, EventCode::SA);
  count(Counter::TO, EventCode::STO, Rows::Better::Less);
  count(Counter::ST, EventCode::SST);
  count(Counter::BS, EventCode::SBS);
  count(Counter::PF, EventCode::SPF, Rows::Better::Less);
  rows.addMargin(Text::ScoreDifference, left.meanwhile.plusMinus(left.team),
                 right.meanwhile.plusMinus(right.team));
  rows.addCount(Text::RatingCapital, left.own.rating(), right.own.rating());
  rows.beginGroup();
  for (const Rate& rate : rates()) {
    if (rate.name != "pace")
      rows.addRate(rate, left, right);
  }
  return rows.take();
}

RateBasis basisOfPlayer(const CountedGame& counted, const GameInsight& insight, Side team, int player) {
  const auto entry = static_cast<std::size_t>(player);
  const PlayerEntry& counts = counted.state.players[team][entry];
  RateBasis basis{team, {}, insight.players[team][entry], counted.state.extras[team][entry]};
  basis.own.counters += counts.counters;
  basis.own.seconds = std::max(counts.seconds, 0);
  return basis;
}

std::vector<PlayerOfGame> playersOf(const CountedGame& counted) {
  std::vector<PlayerOfGame> players;
  for (const Side team : kSides) {
    const GameState& state = counted.state;
    for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
      if (counted.game.roster[team].player(entry) == nullptr)
        break;
      const PlayerEntry& counts = state.players[team][static_cast<std::size_t>(entry)];
      const bool wasOnCourt =
          (static_cast<unsigned>(state.wereOnCourt[team]) >> static_cast<unsigned>(entry) & 1U) != 0;
      if (wasOnCourt || counts.seconds > 0 || counts.counters.hasAny())
        players.push_back({team, entry});
    }
  }
  return players;
}

std::vector<NamedStretch> usualStretches(const Game& game, const Texts& texts) {
  std::vector<NamedStretch> stretches;
  const int regular = game.details.periods;
  if (regular > 0 && regular % 2 == 0) {
    stretches.push_back({Stretch::ofPeriods(1, regular / 2), std::string(texts.text(Text::FirstHalf))});
    stretches.push_back(
        {Stretch::ofPeriods(regular / 2 + 1, regular), std::string(texts.text(Text::SecondHalf))});
  }
  int last = 1;
  for (const GameEvent& event : game.events)
    last = std::max(last, event.period);
  for (int period = 1; period <= std::min(last, kLastPeriod); ++period) {
    const Stretch stretch = Stretch::ofPeriods(period, period);
    stretches.push_back({stretch, stretchWords(game, stretch, texts)});
  }
  return stretches;
}

int possessionsOf(const GameInsight& insight) {
  const auto& possessions = insight.whole.possessions;
  return (possessions[Side::Visitor] + possessions[Side::Home] + 1) / 2;
}

} // namespace hooptab
