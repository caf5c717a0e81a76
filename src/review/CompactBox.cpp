#include "review/CompactBox.h"

#include "game/Rules.h"
#include "insight/SignedText.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

using Cell = CompactCell;
using Emphasis = CompactCell::Emphasis;
using Group = CompactColumn::Group;

constexpr std::string_view kNothing = "–";
constexpr double kBehindAll = -1e9;
constexpr ShotKinds kThrees = shotKinds({EventCode::GF3});
constexpr ShotKinds kThrows = shotKinds({EventCode::GFT});
constexpr ShotKinds kTwos = kAllShotKinds & ~kThrees & ~kThrows;

constexpr Text wordsOf(EventCode code) {
  return kindOf(code)->wordsText;
}

Cell number(int value) {
  return {std::to_string(value), static_cast<double>(value), value == 0 ? Emphasis::Faint : Emphasis::None};
}
template <Counter counter>
Cell counted(const CompactBasis& of) {
  return number(of.row.numbers.counters[counter]);
}
Cell rebounds(const CompactBasis& of) {
  return number(of.row.numbers.rebounds());
}
Cell points(const CompactBasis& of) {
  const int value = of.row.numbers.points();
  return {std::to_string(value), static_cast<double>(value)};
}
Cell rating(const CompactBasis& of) {
  const int value = of.row.numbers.rating();
  return {withWideMinus(std::to_string(value)), static_cast<double>(value)};
}
Cell foulsDrawn(const CompactBasis& of) {
  return number(of.row.foulsDrawn);
}
Cell minutes(const CompactBasis& of) {
  return {Module1::clockText(of.row.numbers.seconds), static_cast<double>(of.row.numbers.seconds)};
}

// Those made count first, then the better percentage.
template <ShotKinds kinds>
Cell shots(const CompactBasis& of) {
  const int made = of.row.numbers.made(kinds);
  const int attempted = of.row.numbers.attempted(kinds);
  if (attempted == 0)
    return {std::string(kNothing), -1, Emphasis::Faint};
  return {std::to_string(made) + '/' + std::to_string(attempted),
          made + static_cast<double>(made) / (attempted + 1)};
}

Cell fouls(const CompactBasis& of) {
  const int personal = of.row.numbers.counters[Counter::PF];
  const PlayerFouls all{personal, of.row.numbers.counters[Counter::TF]};
  if (of.row.kind != BoxRowKind::Player || !isFouledOut(of.details, all))
    return number(personal);
  return {std::to_string(personal) + ' ' + std::string(of.texts.text(Text::FouledOutWord)),
          static_cast<double>(personal), Emphasis::Out};
}

Cell plusMinus(const CompactBasis& of) {
  if (of.row.kind == BoxRowKind::Total)
    return {};
  if (!of.hasMargin)
    return {std::string(kNothing), kBehindAll, Emphasis::Faint};
  const int value = of.rates.meanwhile.plusMinus(of.rates.team);
  return {signedText(value), static_cast<double>(value),
          value == 0  ? Emphasis::Faint
          : value > 0 ? Emphasis::Up
                      : Emphasis::Down};
}

constexpr char kEffective[] = "eFG";
constexpr char kTrueShooting[] = "TS";
constexpr char kUsage[] = "usage";
constexpr char kOffensive[] = "offRating";
constexpr char kDefensive[] = "defRating";
constexpr char kGameScore[] = "gameScore";

template <const char* name>
Cell ofRate(const CompactBasis& of) {
  const Rate& rate = rateNamed(name);
  if (rate.isOfPlayersOnly && of.row.kind == BoxRowKind::Total)
    return {};
  const std::optional<double> value = rate.value(of.rates);
  return {withWideMinus(rateText(rate, value)), value.value_or(kBehindAll),
          value ? Emphasis::None : Emphasis::Faint};
}
// A whole number.
Cell index(const CompactBasis& of) {
  if (of.row.kind == BoxRowKind::Total)
    return {};
  const auto value = static_cast<int>(rateNamed("index").value(of.rates).value_or(0));
  return {withWideMinus(std::to_string(value)), static_cast<double>(value)};
}

Cell ownRating(const CompactBasis& of) {
  RatedNumbers numbers{of.row.numbers};
  if (of.row.kind != BoxRowKind::Total) {
    numbers.extras = of.rates.extras;
    if (of.hasMargin)
      numbers.plusMinus = of.rates.meanwhile.plusMinus(of.rates.team);
  }
  const std::optional<double> value = ownRatingOf(of.ownRating, numbers);
  return {withWideMinus(ownRatingText(value)), value.value_or(kBehindAll),
          value ? Emphasis::None : Emphasis::Faint};
}

// clang-format off
constexpr CompactColumn kColumns[] = {
    {"MIN", "000:00", Group::Points, Text::TimeToolTip, Text::None, minutes, true, false, true},
    {"PTS", "000", Group::Points, Text::PointsScored, Text::None, points},
    {"2P", "00/00", Group::Shots, Text::TwoPointer, Text::None, shots<kTwos>},
    {"3P", "00/00", Group::Shots, Text::ThreePointer, Text::None, shots<kThrees>},
    {"FT", "00/00", Group::Shots, wordsOf(EventCode::GFT), Text::None, shots<kThrows>},
    {"OR", "00", Group::Rebounds, wordsOf(EventCode::SOR), Text::None, counted<Counter::OR>, true, true},
    {"DR", "00", Group::Rebounds, wordsOf(EventCode::SDR), Text::None, counted<Counter::DR>, true, true},
    {"TR", "00", Group::Rebounds, Text::TotalRebounds, Text::None, rebounds, true, true},
    {"AST", "00", Group::Play, wordsOf(EventCode::SA), Text::None, counted<Counter::Ast>, true, true},
    {"TO", "00", Group::Play, wordsOf(EventCode::STO), Text::None, counted<Counter::TO>},
    {"ST", "00", Group::Play, wordsOf(EventCode::SST), Text::None, counted<Counter::ST>, true, true},
    {"BS", "00", Group::Play, wordsOf(EventCode::SBS), Text::None, counted<Counter::BS>, true, true},
    {"PF", "00", Group::Fouls, wordsOf(EventCode::SPF), Text::None, fouls},
    {"+/−", "−00", Group::Margin, Text::ScoreDifference, Text::PlusMinusTip, plusMinus},
    {"RAT", "000", Group::Rating, Text::RatingCapital, Text::RatingFormula, rating, true, true},
    {"TF", "00", Group::Fouls, wordsOf(EventCode::STF), Text::None, counted<Counter::TF>, false},
    {"FD", "00", Group::Fouls, Text::FoulsDrawn, Text::None, foulsDrawn, false, true},
    {"eFG%", "100.0", Group::Rates, Text::EffectiveFieldGoals, Text::EffectiveTip, ofRate<kEffective>, false},
    {"TS%", "100.0", Group::Rates, Text::TrueShootingWord, Text::TrueShootingTip, ofRate<kTrueShooting>, false},
    {"USG%", "100.0", Group::Rates, Text::UsageWord, Text::UsageTip, ofRate<kUsage>, false},
    {"ORTG", "000.0", Group::Rates, Text::RatingOffensive, Text::RatingPerHundredTip, ofRate<kOffensive>, false},
    {"DRTG", "000.0", Group::Rates, Text::RatingDefensive, Text::RatingPerHundredTip, ofRate<kDefensive>, false},
    {"PIR", "−00", Group::Rating, Text::IndexWord, Text::IndexTip, index, false, true},
    {"GmSc", "−00.0", Group::Rating, Text::GameScoreWord, Text::GameScoreTip, ofRate<kGameScore>, false, true},
    {kOwnRatingColumn, "−000.0", Group::Rating, Text::OwnRatingGroup, Text::None, ownRating, false, true},
};
// clang-format on

bool hasPlayed(const BoxRow& row, const GameState& state, Side team) {
  const auto entry = static_cast<unsigned>(row.entry);
  return row.numbers.seconds > 0 || row.numbers.counters != BoxCounters() || row.foulsDrawn != 0 ||
         row.blocksAgainst != 0 || (static_cast<unsigned>(state.wereOnCourt[team]) >> entry & 1U) != 0;
}

// The first letter, whatever it takes in UTF-8.
std::string firstLetter(std::string_view position) {
  std::size_t end = std::min<std::size_t>(1, position.size());
  while (end < position.size() && (static_cast<unsigned char>(position[end]) & 0xC0U) == 0x80U)
    ++end;
  return std::string(position.substr(0, end));
}

RateBasis basisOf(const BoxRow& row, const CountedGame& counted, const GameInsight& insight, Side team) {
  const auto entry = static_cast<std::size_t>(std::max(row.entry, 0));
  RateBasis basis{team, row.numbers, insight.whole};
  if (row.kind != BoxRowKind::Total) {
    basis.meanwhile = insight.players[team][entry];
    basis.extras = counted.state.extras[team][entry];
  }
  return basis;
}

void markBest(std::vector<CompactRow>& rows, const CompactChoice& choice) {
  for (std::size_t place = 0; place < choice.size(); ++place) {
    if (!compactColumns()[choice[place]].hasBest)
      continue;
    double best = 0;
    for (const CompactRow& row : rows) {
      if (!row.isTotal && !row.didNotPlay)
        best = std::max(best, row.cells[place].sortValue);
    }
    for (CompactRow& row : rows) {
      if (best > 0 && !row.isTotal && !row.didNotPlay && row.cells[place].sortValue == best)
        row.cells[place].emphasis = Emphasis::Best;
    }
  }
}

} // namespace

std::span<const CompactColumn> compactColumns() {
  return kColumns;
}

CompactChoice usualCompactColumns() {
  CompactChoice choice;
  for (std::size_t i = 0; i < std::size(kColumns); ++i) {
    if (kColumns[i].isUsual)
      choice.push_back(i);
  }
  return choice;
}

std::string textOfChoice(const CompactChoice& choice) {
  std::string text;
  for (const std::size_t column : choice) {
    text += text.empty() ? "" : ",";
    text += kColumns[column].name;
  }
  return text;
}

CompactChoice choiceOfText(std::string_view text) {
  CompactChoice choice;
  while (!text.empty()) {
    const std::string_view name = text.substr(0, text.find(','));
    text.remove_prefix(std::min(name.size() + 1, text.size()));
    const CompactColumn* found = std::ranges::find(kColumns, name, &CompactColumn::name);
    const auto column = static_cast<std::size_t>(found - std::begin(kColumns));
    if (found != std::end(kColumns) && std::ranges::find(choice, column) == choice.end())
      choice.push_back(column);
  }
  return choice.empty() ? usualCompactColumns() : choice;
}

std::vector<CompactRow> compactRows(const CountedGame& counted, const GameInsight& insight, unsigned starters,
                                    Side team, const CompactChoice& choice, const Texts& texts,
                                    const OwnRating& ownRating) {
  std::vector<CompactRow> rows;
  for (const BoxRow& row : boxRows(counted, team, BoxView::Players, texts)) {
    const bool isPlayer = row.kind == BoxRowKind::Player;
    CompactRow& shown = rows.emplace_back();
    shown.number = row.number;
    shown.name = row.name;
    const RosterPlayer* player = isPlayer ? counted.game.roster[team].player(row.entry) : nullptr;
    if (player != nullptr && player->position != kNoPosition)
      shown.position = firstLetter(row.position);
    shown.numberSortValue = jerseySortValue(row.number);
    shown.isStarter = isPlayer && (starters >> static_cast<unsigned>(row.entry) & 1U) != 0;
    shown.isTotal = row.kind == BoxRowKind::Total;
    shown.didNotPlay = isPlayer && !hasPlayed(row, counted.state, team);
    if (shown.didNotPlay)
      continue;
    const RateBasis rates = basisOf(row, counted, insight, team);
    const CompactBasis basis{row, rates, counted.game.details, texts, ownRating, insight.isFromEvents};
    for (const std::size_t column : choice)
      shown.cells.push_back(kColumns[column].cell(basis));
  }
  markBest(rows, choice);
  return rows;
}

} // namespace hooptab
