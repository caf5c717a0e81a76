#include "cli/Reports.h"
#include "feed/InsightJson.h"
#include "scorecard/BoxScore.h"
#include "storage/Module1.h"

#include <cmath>

namespace hooptab {

namespace {

constexpr std::string_view kEstimated = "possessionsEstimated";

// Behind the columns of the scorecard, under the names that they have in JSON: of a player, then of a team.
struct InsightColumn {
  std::string_view name;
  Text words; // none: the name in every language
};
constexpr InsightColumn kInsightColumns[] = {{"plusMinus", Text::None},
                                             {"possessionsCounted", Text::PossessionsWord},
                                             {kEstimated, Text::PossessionsWord},
                                             {"paint", Text::InThePaint},
                                             {"fromTurnovers", Text::FromTurnovers},
                                             {"secondChance", Text::SecondChance},
                                             {"bench", Text::FromTheBench},
                                             {"fastBreak", Text::FastBreakPoints}};

class BoxCsv {
 public:
  BoxCsv(const Scorecard& card, const Texts& texts, CsvReader reader)
      : m_card(card), m_texts(texts), m_reader(reader), m_insight(insightOf(card.game())) {}

  [[nodiscard]] std::string text() const {
    std::string csv(m_reader == CsvReader::French ? kByteOrderMark : std::string_view());
    csv += csvRow(header(), m_reader);
    for (const Side team : kSides) {
      for (const BoxRow& row : boxRows(*m_card.counted(), team, BoxView::Players, m_texts))
        csv += csvRow(cells(team, row), m_reader);
    }
    return csv;
  }

 private:
  [[nodiscard]] std::string word(std::string_view name, Text french) const {
    return std::string(m_reader == CsvReader::French && french != Text::None ? m_texts.text(french) : name);
  }
  [[nodiscard]] std::vector<std::string> header() const {
    std::vector<std::string> header = {word("team", Text::Team)};
    for (const int index : boxDisplayOrder()) {
      const BoxColumn& column = boxColumns()[static_cast<std::size_t>(index - 1)];
      header.push_back(word(column.name, column.headerText));
    }
    for (const InsightColumn& column : kInsightColumns) {
      header.push_back(word(column.name, column.words));
      if (column.name == kEstimated && m_reader == CsvReader::French)
        header.back() += " ≈";
    }
    return header;
  }
  [[nodiscard]] std::vector<std::string> cells(Side team, const BoxRow& row) const {
    std::vector<std::string> cells = {m_card.game().details.abbreviation[team]};
    for (const int column : boxDisplayOrder())
      cells.push_back(boxCell(row, column));
    const auto plusMinus = plusMinusOf(m_insight, m_card.state(), team, row);
    cells.push_back(plusMinus ? std::to_string(*plusMinus) : std::string());
    const bool isTeam = row.kind == BoxRowKind::Total;
    for (std::string& cell : teamCells(team))
      cells.push_back(isTeam ? std::move(cell) : std::string());
    return cells;
  }
  // What cannot be known is empty.
  [[nodiscard]] std::vector<std::string> teamCells(Side team) const {
    const auto known = [](std::optional<int> number) {
      return number ? std::to_string(*number) : std::string();
    };
    const auto fromEvents = [&](int number) {
      return m_insight.isFromEvents ? std::to_string(number) : std::string();
    };
    const PointOrigins& origins = m_insight.origins[team];
    return {fromEvents(m_insight.whole.possessions[team]),
            estimated(team),
            fromEvents(origins.paint),
            fromEvents(origins.fromTurnovers),
            fromEvents(origins.secondChance),
            known(origins.bench),
            known(origins.fastBreak)};
  }

  [[nodiscard]] std::string estimated(Side team) const {
    constexpr int kHundredths = 100; // the formula has no more
    const double possessions =
        estimatedPossessions(m_insight.whole.numbers(team), m_card.state().teamRows[team]);
    return Module1::quotientText(std::lround(kHundredths * possessions), kHundredths, 2);
  }

  const Scorecard& m_card;
  const Texts& m_texts;
  const CsvReader m_reader;
  GameInsight m_insight;
};

} // namespace

std::string boxCsv(const Scorecard& card, const Texts& texts, CsvReader reader) {
  return BoxCsv(card, texts, reader).text();
}

} // namespace hooptab
