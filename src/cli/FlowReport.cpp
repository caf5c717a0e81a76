#include "cli/InsightReports.h"
#include "feed/JsonWriter.h"
#include "feed/TextTable.h"
#include "game/PeriodName.h"
#include "insight/MarginFlow.h"
#include "insight/SignedText.h"
#include "insight/WinProbability.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <algorithm>

namespace hooptab {

namespace {

using Align = TextTable::Align;

std::string scoreText(const PerSide<int>& score) {
  return std::to_string(score[Side::Visitor]) + "-" + std::to_string(score[Side::Home]);
}

class FlowWords {
 public:
  FlowWords(const CountedGame& counted, const Texts& texts)
      : m_counted(counted), m_texts(texts), m_flow(marginFlowOf(counted.game)) {}

  std::string text() const {
    std::string text = steps() + '\n' + peaks() + '\n';
    text += counted(m_flow.leadChanges.size(), Text::OneLeadChange, Text::LeadChangesCount) + ", " +
            counted(static_cast<std::size_t>(m_flow.timesTied), Text::TiedOnce, Text::TiedTimes) + '\n';
    for (const MarginFlow::Run& run : m_flow.runs)
      text += runText(run) + '\n';
    return text;
  }

 private:
  std::string word(Text which) const { return std::string(m_texts.text(which)); }
  std::string name(Side team) const { return printable(m_counted.game.details.abbreviation[team]); }
  std::string counted(std::size_t number, Text one, Text many) const {
    return number == 1 ? word(one) : m_texts.withPlaceholder(many, std::to_string(number));
  }
  std::string when(int period, int clockSeconds) const {
    return periodName(period, m_counted.game.details.periods, m_texts) +
           (m_flow.hasTime ? ' ' + Module1::clockText(clockSeconds) : std::string());
  }

  std::string steps() const {
    TextTable table;
    table.addColumn(word(Text::Period), Align::Left);
    table.addColumn(word(Text::Clock), Align::Right);
    table.addColumn(word(Text::Score), Align::Right);
    table.addColumn(name(Side::Visitor), Align::Right);
    for (const MarginFlow::Step& step : m_flow.steps)
      table.addRow({periodName(step.period, m_counted.game.details.periods, m_texts),
                    m_flow.hasTime ? Module1::clockText(step.clockSeconds) : std::string("--:--"),
                    scoreText(step.score), signedText(step.margin())});
    return table.text();
  }

  std::string peaks() const {
    TextTable table;
    table.addColumn("", Align::Left);
    for (const Side team : kSides)
      table.addColumn(name(team), Align::Right);
    const auto add = [&](Text label, const PerSide<std::optional<MarginFlow::Peak>>& peak) {
      std::vector<std::string> row = {word(label)};
      for (const Side team : kSides)
        row.push_back(peak[team] ? std::to_string(peak[team]->points) + " (" +
                                       when(peak[team]->period, peak[team]->clockSeconds) + ')'
                                 : "-");
      table.addRow(std::move(row));
    };
    add(Text::BiggestLead, m_flow.biggestLead);
    add(Text::BiggestRunWord, m_flow.biggestRun);
    const auto& lead = m_counted.state.lead.seconds;
    table.addRow({word(Text::TimeInLead), Module1::clockText(lead[0]), Module1::clockText(lead[1])});
    return table.text();
  }

  std::string runText(const MarginFlow::Run& run) const {
    const MarginFlow::Step& first = m_flow.steps[run.first];
    const MarginFlow::Step& last = m_flow.steps[run.last];
    return withPlaceholders(m_texts.text(Text::RunChapter), name(run.team), std::to_string(run.points)) +
           " (" + when(first.period, first.clockSeconds) + " - " + when(last.period, last.clockSeconds) + ')';
  }

  const CountedGame& m_counted;
  const Texts& m_texts;
  MarginFlow m_flow;
};

void writeScore(JsonWriter& json, const PerSide<int>& score) {
  json.name("score");
  json.beginArray();
  json.value(score[Side::Visitor]);
  json.value(score[Side::Home]);
  json.endArray();
}

} // namespace

std::string flowText(const CountedGame& counted, const Texts& texts) {
  return FlowWords(counted, texts).text();
}

std::string flowJson(const CountedGame& counted) {
  const MarginFlow flow = marginFlowOf(counted.game);
  const std::vector<WinStep> chances = winProbabilityOf(flow, counted.game.details);
  JsonWriter json;
  json.beginObject();
  json.name("steps");
  json.beginArray();
  for (std::size_t i = 0; i < flow.steps.size(); ++i) {
    const MarginFlow::Step& step = flow.steps[i];
    json.beginObject();
    json.beginLine();
    json.member("period", step.period);
    json.member("clock", Module1::clockText(step.clockSeconds));
    json.member("elapsed", step.at);
    writeScore(json, step.score);
    if (!chances.empty())
      json.member("homeWins", chances[i + 1].home);
    json.endObject();
    json.endLine();
  }
  json.endArray();
  json.name("runs");
  json.beginArray();
  for (const MarginFlow::Run& run : flow.runs) {
    json.beginObject();
    json.beginLine();
    json.member("team", numberOf(run.team));
    json.member("points", run.points);
    json.member("firstStep", static_cast<int>(run.first));
    json.member("lastStep", static_cast<int>(run.last));
    json.endObject();
    json.endLine();
  }
  json.endArray();
  json.name("leadChanges");
  json.beginArray();
  json.beginLine();
  for (const std::size_t step : flow.leadChanges)
    json.value(static_cast<int>(step));
  json.endArray();
  json.endLine();
  json.member("timesTied", flow.timesTied);
  json.endObject();
  return json.text();
}

} // namespace hooptab
