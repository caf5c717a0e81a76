#include "report/GamePages.h"

#include "report/GameSheet.h"
#include "report/ReportWords.h"
#include "scorecard/Scorecard.h"

#include <algorithm>

namespace hooptab {

namespace {

ReportTable summaryTable(const Texts& texts) {
  const auto text = [&](Text which) { return std::string(texts.text(which)); };
  ReportTable table;
  table.title = text(Text::WeekendSummary);
  table.columns = {{text(Text::Date), "Date", {}, true},
                   {text(Text::Visitor), "Visitor", {}, true},
                   {"PTS", "VisitorPTS"},
                   {text(Text::Home), "Home", {}, true},
                   {"PTS", "HomePTS"},
                   {text(Text::Location), "Location", {}, true}};
  return table;
}

ReportRow summaryRow(const CountedGame& counted) {
  const GameDetails& details = counted.game.details;
  const auto name = [&](Side team) {
    return textCell(details.name[team].empty() ? details.abbreviation[team] : details.name[team]);
  };
  const auto points = [&](Side team) {
    ReportCell cell = numberCell(counted.state.points(team));
    cell.isStrong = counted.state.points(team) > counted.state.points(otherSide(team));
    return cell;
  };
  return {{textCell(details.date), name(Side::Visitor), points(Side::Visitor), name(Side::Home),
           points(Side::Home), textCell(details.place)}};
}

} // namespace

GamePages gamePages(FileSystem& files, std::span<const std::string> paths, const Texts& texts,
                    const TaskWatch& watch) {
  ProfileStore store(files);
  GamePages games;
  games.summary = summaryTable(texts);
  for (const std::string& path : paths) {
    if (watch.isCancelled())
      break;
    Scorecard card(store, path);
    const GameFileProblem problem = card.load();
    watch.advance();
    if (problem != GameFileProblem::None) {
      games.passedOver.push_back({path, whyNotRead(problem)});
      continue;
    }
    const GameDetails& details = card.game().details;
    games.summary.rows.push_back(summaryRow(*card.counted()));
    games.pages.push_back(gameSheet(*card.counted(), texts));
    games.names.push_back(details.abbreviation[Side::Visitor] + '-' + details.abbreviation[Side::Home] + ' ' +
                          details.date);
  }
  return games;
}

Text whyNotRead(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::Absent: return Text::NoSuchFile;
  case GameFileProblem::TooLarge: return Text::TooLargeToBeAGame;
  case GameFileProblem::InvalidFormat: return Text::NotAGame;
  default: return Text::CannotBeReadGiveAFile;
  }
}

std::string nameOfGames(std::vector<std::string> dates, const std::string& otherwise) {
  std::erase(dates, std::string());
  if (dates.empty())
    return proposedFileName(otherwise);
  const auto [first, last] = std::ranges::minmax(dates);
  return proposedFileName(first == last ? first : first + " - " + last);
}

} // namespace hooptab
