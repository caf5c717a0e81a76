#include "season/LeaderBoards.h"

#include "insight/Rates.h"
#include "scorecard/ColumnWords.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace hooptab {

namespace {

// Names of statistics or of rates; two are neither.
constexpr std::string_view kOwn = "own";
constexpr std::string_view kPlusMinus = "plusMinus";
constexpr std::array<std::string_view, 13> kBoards = {
    "PTS", "TR", "Ast", "ST", "BS", "F2pct", "F3pct", "FTpct", "eFG", "rating", kOwn, kPlusMinus, "Time"};

constexpr Text kViewTexts[] = {Text::Totals, Text::PerGame, Text::PerMinute, Text::PerForty};

// The shots that one must have tried to lead in a rate.
ShotKinds triesOf(std::string_view rate) {
  const ShotKinds threes = statisticNamed("F3%").tries;
  const ShotKinds throws = statisticNamed("FT%").tries;
  return rate == "F3pct"   ? threes
         : rate == "FTpct" ? throws
         : rate == "F2pct" ? kAllShotKinds & ~threes & ~throws
                           : kAllShotKinds & ~throws;
}

class BoardMaker {
 public:
  BoardMaker(const Season& season, SeasonView view, const Settings& settings, const Texts& texts)
      : m_season(season), m_view(view), m_settings(settings), m_texts(texts) {}

  [[nodiscard]] std::vector<LeaderBoard> make() const {
    std::vector<LeaderBoard> boards;
    for (const std::string_view name : kBoards) {
      const auto rate = std::ranges::find(rates(), name, &Rate::name);
      if (rate != rates().end())
        boards.push_back(boardOf(*rate));
      else if (name == kPlusMinus)
        boards.push_back(plusMinus());
      else
        addListed(name == kOwn ? kSeasonOwnColumn : seasonColumn(name).index, boards);
    }
    for (LeaderBoard& board : boards)
      board.leaders.resize(std::min(board.leaders.size(), LeaderBoard::kShown));
    return boards;
  }

 private:
  [[nodiscard]] std::string unit() const {
    return std::string(m_texts.text(kViewTexts[static_cast<std::size_t>(m_view)]));
  }

  void addListed(int column, std::vector<LeaderBoard>& boards) const {
    const auto all = m_season.leaders(m_view).statistics();
    const auto found = std::ranges::find(all, column, &StatisticLeaders::column);
    if (found == all.end())
      return;
    std::string title = column == kSeasonOwnColumn
                            ? m_texts.withPlaceholder(Text::OwnRatingBoth, m_season.ownRating().head)
                            : statisticTitle(*seasonColumn(column).statistic, m_season.statistics().labels(),
                                             m_settings, m_texts);
    boards.push_back({std::move(title), unit(), found->leaders});
  }

  [[nodiscard]] LeaderBoard boardOf(const Rate& rate) const {
    const ShotKinds tries = triesOf(rate.name);
    const int attempts = m_season.minimum().attempts;
    const auto value = [&](const SeasonRow& row) {
      RateBasis basis;
      basis.own = row.numbers;
      return m_season.minimum().hasTried(row, tries) ? rate.value(basis) : std::nullopt;
    };
    return {std::string(m_texts.text(rate.words)),
            "≥ " + std::to_string(attempts) + ' ' + std::string(m_texts.text(Text::AttemptsAGame)),
            leadersBy(m_season.statistics().players(), value,
                      [&](const SeasonRow&, double shown) { return rateText(rate, shown); })};
  }

  [[nodiscard]] LeaderBoard plusMinus() const {
    const auto value = [this](const SeasonRow& row) {
      return m_season.minimum().isUnder(row, SeasonTable::Players, m_view) ? std::nullopt
                                                                           : seasonPlusMinus(row, m_view);
    };
    return {"+/−", unit(),
            leadersBy(m_season.statistics().players(), value,
                      [this](const SeasonRow& row, double) { return seasonPlusMinusText(row, m_view); })};
  }

  const Season& m_season;
  const SeasonView m_view;
  const Settings& m_settings;
  const Texts& m_texts;
};

} // namespace

std::vector<LeaderBoard> leaderBoards(const Season& season, SeasonView view, const Settings& settings,
                                      const Texts& texts) {
  return BoardMaker(season, view, settings, texts).make();
}

} // namespace hooptab
