#include "feed/BoxText.h"

#include "feed/BoxJson.h"
#include "feed/TextTable.h"
#include "game/EventWords.h"
#include "scorecard/BoxScore.h"
#include "scorecard/Scorecard.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

using Align = TextTable::Align;
using Row = std::vector<std::string>;

class BoxText {
 public:
  BoxText(const CountedGame& counted, const Texts& texts)
      : m_counted(counted), m_game(counted.game), m_texts(texts) {
    for (const Side team : kSides) {
      m_rows[team] = boxRows(counted, team, BoxView::Players, texts);
      m_names[team] = printable(m_game.details.abbreviation[team]);
    }
  }

  std::string text() const {
    std::string text = printable(gameTitle(m_counted)) + '\n' + description() + '\n';
    text += periodTable(Text::PointsByPeriod, &PeriodEntry::points) + '\n';
    text += periodTable(Text::Fouls, &PeriodEntry::fouls) + '\n';
    text += leadTable();
    for (const Side team : kSides) {
      text += '\n' + m_names[team];
      if (const std::string& name = m_game.details.name[team]; !name.empty())
        text += " - " + printable(name);
      text += '\n' + playerTable(team);
    }
    return text;
  }

 private:
  std::string word(Text which) const { return std::string(m_texts.text(which)); }

  // Date, kind and place of the game, as far as the file tells; a line of its own.
  std::string description() const {
    const GameDetails& details = m_game.details;
    std::string text;
    for (const std::string& part :
         {details.date, std::string(gameTypeText(details.type, m_texts)), details.place}) {
      if (!part.empty())
        text += (text.empty() ? "" : " - ") + printable(part);
    }
    return text.empty() ? text : text + '\n';
  }

  std::string periodTable(Text captionText, std::int16_t PeriodEntry::*count) const {
    TextTable table;
    table.addColumn(word(captionText), Align::Left);
    const EventWords words(m_game, m_texts);
    const int periods = shownPeriods(m_game);
    for (int period = 1; period <= periods; ++period)
      table.addColumn(words.periodText(period), Align::Right);
    table.addColumn(word(Text::Total), Align::Right);
    for (const Side team : kSides) {
      Row row = {m_names[team]};
      int sum = 0;
      for (int period = 1; period <= periods; ++period) {
        const int value = m_counted.state.periods[team][GameState::periodRow(period)].*count;
        row.push_back(std::to_string(value));
        sum += value;
      }
      row.push_back(std::to_string(sum));
      table.addRow(std::move(row));
    }
    return table.text();
  }

  std::string leadTable() const {
    const LeadTracker& lead = m_counted.state.lead;
    TextTable table;
    table.addColumn(word(Text::TimeInLead), Align::Left);
    table.addColumn(word(Text::Time), Align::Right);
    table.addColumn(word(Text::Times), Align::Right);
    const std::string names[] = {m_names[Side::Visitor], m_names[Side::Home], word(Text::LeadTied)};
    for (std::size_t state = 0; state < 3; ++state)
      table.addRow(
          {names[state], Module1::clockText(lead.seconds[state]), std::to_string(lead.times[state])});
    return table.text();
  }

  // Whether anybody in the game has any of these counts.
  bool occurs(Counter counter) const {
    return std::ranges::any_of(m_rows, [&](const std::vector<BoxRow>& rows) {
      return std::ranges::any_of(rows, [&](const BoxRow& row) { return row.numbers.counters[counter] != 0; });
    });
  }

  std::string playerTable(Side team) const {
    constexpr EventCode kShots[] = {EventCode::GFG, EventCode::GF3, EventCode::GFT, EventCode::GLG,
                                    EventCode::GLD, EventCode::GPB, EventCode::GDK};
    constexpr Counter kCounts[] = {Counter::OR, Counter::DR, Counter::Ast, Counter::BS,
                                   Counter::ST, Counter::TO, Counter::PF,  Counter::TF};
    std::vector<const EventKind*> shots;
    for (const EventCode code : kShots) {
      if (const EventKind* kind = kindOf(code); occurs(kind->attempts))
        shots.push_back(kind);
    }
    std::vector<Counter> counts(std::begin(kCounts), std::end(kCounts));
    for (const Counter own : {Counter::S1, Counter::S2}) {
      if (occurs(own))
        counts.push_back(own);
    }

    TextTable table;
    table.addColumn("No", Align::Right);
    table.addColumn(word(Text::PlayerName), Align::Left);
    table.addColumn("Pos", Align::Left);
    table.addColumn(word(Text::Time), Align::Right);
    table.addColumn("PTS", Align::Right);
    table.addColumn("M/A", Align::Right);
    table.addColumn("%", Align::Right);
    for (const EventKind* kind : shots)
      table.addColumn(std::string(kind->shortName), Align::Right);
    for (const Counter counter : counts)
      table.addColumn(std::string(counterName(counter)), Align::Right);
    table.addColumn(word(Text::Rating), Align::Right);

    for (const BoxRow& row : m_rows[team]) {
      const bool isTotal = row.kind == BoxRowKind::Total;
      if (isTotal)
        table.addRule();
      const BoxNumbers& numbers = row.numbers;
      const auto ratio = [](int made, int attempted) {
        return std::to_string(made) + '/' + std::to_string(attempted);
      };
      Row cells = {printable(row.number),
                   printable(row.name),
                   isTotal ? std::string() : row.position,
                   Module1::clockText(numbers.seconds),
                   std::to_string(numbers.points()),
                   ratio(numbers.made(), numbers.attempted()),
                   Module1::percentText(numbers.made(), numbers.attempted())};
      for (const EventKind* kind : shots)
        cells.push_back(ratio(numbers.counters[kind->counter], numbers.counters[kind->attempts]));
      for (const Counter counter : counts)
        cells.push_back(std::to_string(numbers.counters[counter]));
      cells.push_back(std::to_string(numbers.rating()));
      table.addRow(std::move(cells));
    }
    return table.text();
  }

  const CountedGame& m_counted;
  const Game& m_game;
  const Texts& m_texts;
  PerSide<std::vector<BoxRow>> m_rows;
  PerSide<std::string> m_names;
};

} // namespace

std::string boxText(const CountedGame& counted, const Texts& texts) {
  return BoxText(counted, texts).text();
}

} // namespace hooptab
