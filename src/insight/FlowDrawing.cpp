#include "insight/FlowDrawing.h"

#include "game/EventWords.h"
#include "storage/Placeholders.h"

#include <cstdlib>

namespace hooptab {

namespace {

// Nothing is said of what did not happen.
void addCount(std::vector<std::string>& parts, std::size_t count, Text one, Text many, const Texts& texts) {
  if (count > 0)
    parts.push_back(count == 1 ? std::string(texts.text(one))
                               : texts.withPlaceholder(many, std::to_string(count)));
}

} // namespace

FlowDrawing flowDrawing(const Game& game, const Texts& texts) {
  FlowDrawing drawing;
  drawing.flow = marginFlowOf(game);
  const MarginFlow& flow = drawing.flow;
  const EventWords words(game, texts);
  for (const Side team : kSides) {
    drawing.teams[team] = words.team(team);
    drawing.colours[team] = game.details.teamColour[team];
    drawing.ahead[team] = texts.withPlaceholder(Text::TeamAhead, drawing.teams[team]);
  }
  for (const MarginFlow::Period& period : flow.periods) {
    const std::string name = words.periodText(period.number);
    const bool isNumber = name == std::to_string(period.number);
    drawing.shortPeriods.push_back(name);
    drawing.periods.push_back(isNumber ? texts.withPlaceholder(Text::PeriodNumber, name) : name);
  }
  drawing.chanceWords = texts.withPlaceholder(Text::WinChanceOf, drawing.teams[Side::Visitor]);
  drawing.timeWords = texts.text(Text::Time);
  drawing.differenceWords = texts.text(Text::ScoreDifference);
  if (flow.steps.empty()) {
    drawing.emptyWords = texts.text(game.details.inputType != 0 ? Text::NoOrderInTotals : Text::NoScoreYet);
    return drawing;
  }
  const int margin = flow.steps.back().margin();
  drawing.result = margin == 0 ? std::string(texts.text(Text::LevelWord))
                               : withPlaceholders(texts.text(Text::TeamByPoints),
                                                  drawing.teams[margin > 0 ? Side::Visitor : Side::Home],
                                                  std::to_string(std::abs(margin)));
  return drawing;
}

std::vector<std::string> flowSummary(const FlowDrawing& drawing, const Texts& texts) {
  std::vector<std::string> parts;
  for (const Side team : kSides) {
    if (const auto& lead = drawing.flow.biggestLead[team])
      parts.push_back(
          withPlaceholders(texts.text(Text::UpTo), drawing.teams[team], std::to_string(lead->points)));
  }
  addCount(parts, drawing.flow.leadChanges.size(), Text::OneLeadChange, Text::LeadChangesCount, texts);
  addCount(parts, static_cast<std::size_t>(drawing.flow.timesTied), Text::TiedOnce, Text::TiedTimes, texts);
  return parts;
}

std::string inOneLine(const std::vector<std::string>& parts) {
  std::string line;
  for (const std::string& part : parts)
    line += (line.empty() ? "" : " · ") + part;
  return line;
}

} // namespace hooptab
