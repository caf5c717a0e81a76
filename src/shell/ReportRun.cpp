#include "shell/ReportRun.h"

#include "printing/GameReports.h"
#include "printing/ReportFiles.h"
#include "printing/ReportWords.h"
#include "printing/SeasonReports.h"
#include "printing/TeamReports.h"
#include "scorecard/Scorecard.h"
#include "season/GameFinder.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>

namespace hooptab {

namespace {

enum ExitStatus { kGood = 0, kFailed = 1, kWrongUse = 2 };

int complain(ExitStatus status, const std::string& text) {
  std::cerr << "hooptab: " << printable(text) << '\n';
  return status;
}

std::string explained(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::Absent: return "there is no such file";
  case GameFileProblem::InvalidFormat: return "Invalid File Format (Not a Valid .GAM File)";
  default: return "cannot be read";
  }
}

class ReportRun {
 public:
  ReportRun(const ReportRequest& request, const std::string& folder)
      : m_request(request), m_settings(m_store, folder) {
    m_settings.read();
    m_texts.setLanguage(request.isForFrenchSpreadsheets ? Language::French
                                                        : request.language.value_or(m_settings.language));
  }

  int run() {
    std::optional<ReportForm> form = reportFormOf(m_request.format);
    if (form == ReportForm::Csv && m_request.isForFrenchSpreadsheets)
      form = ReportForm::CsvFrench;
    if (!form)
      return complain(kWrongUse, "unknown format " + m_request.format + "; use pdf, xlsx, csv, html or png");
    if (isOfGame() && std::filesystem::is_directory(m_request.source, m_ignored))
      return writeEachGame(*form);
    Report report;
    if (const int status = make(report); status != kGood)
      return status;
    return write(report, *form, m_request.output);
  }

 private:
  bool isOfGame() const {
    const std::string& kind = m_request.kind;
    return kind == "scorecard" || kind == "scorecard-lines" || kind == "play-by-play";
  }

  // A file for each game of the folder, finished or not, under the name that the preview would propose. One
  // game that cannot be reported does not keep the others from it.
  int writeEachGame(ReportForm form) {
    if (!std::filesystem::is_directory(m_request.output, m_ignored))
      return complain(kWrongUse,
                      m_request.output + ": for a folder of games, -o names a folder that is there");
    ScanWatch watch;
    const FoundGames games = findGames(m_files, {m_request.source}, watch);
    if (games.outcome != ScanOutcome::Done || games.paths.empty())
      return complain(kFailed, m_request.source + ": no game in this folder, or it cannot be read");
    ExitStatus status = kGood;
    for (const std::string& game : games.paths) {
      Report report;
      if (makeOfGame(game, report) != kGood ||
          write(report, form, m_request.output + '/' + report.fileName + '.' + std::string(endingOf(form))) !=
              kGood)
        status = kFailed;
    }
    return status;
  }

  int write(Report& report, ReportForm form, const std::string& output) {
    if (!m_request.title.empty())
      report.title = m_request.title;
    if (!canBe(report, form))
      return complain(kWrongUse, "a report of this kind cannot be written as " + m_request.format);
    PageFormat format;
    format.paper = m_request.isLetter ? Paper::Letter : Paper::A4;
    const char* language = m_texts.language() == Language::French ? "fr" : "en";
    const auto contents = filesOf(report, form, format, language);
    if (!contents)
      return complain(kFailed, "the report could not be made; is there room for temporary files?");
    const std::string failed = writeFiles(m_files, output, *contents);
    return failed.empty() ? kGood
                          : complain(kFailed, failed + ": cannot be written; nothing was changed there");
  }

  int make(Report& report) {
    const std::string& kind = m_request.kind;
    if (isOfGame())
      return makeOfGame(m_request.source, report);
    if (kind == "blank-forms") {
      report = blankForms(m_texts);
      return kGood;
    }
    if (kind == "roster" || kind == "forms")
      return makeOfTeam(report);
    for (const SeasonReportName& name : seasonReports()) {
      if (name.word == kind)
        return makeOfSeason(name.report, report);
    }
    return complain(kWrongUse, "unknown report " + kind + "; see hooptab --help");
  }
  int makeOfSeason(SeasonReport which, Report& report) {
    if (m_request.source.empty())
      return complain(kWrongUse, "--report " + m_request.kind + " needs a folder of games");
    GameCatalogue catalogue(m_files);
    ScanWatch watch;
    if (catalogue.scan({m_request.source}, watch) != ScanOutcome::Done)
      return complain(kFailed, m_request.source + ": there is no such folder, or it cannot be read");
    for (const SkippedFile& skipped : catalogue.skipped())
      std::cerr << "hooptab: left out: " << printable(skipped.path) << ": "
                << m_texts.text(skipReasonText(skipped.reason), Language::English) << '\n';
    if (catalogue.games().empty())
      return complain(kFailed, m_request.source + ": no finished game in this folder");
    GameCriteria criteria;
    criteria.team = m_request.team;
    SeasonReportChoice choice;
    choice.minimum = m_request.minimum;
    choice.team = catalogue.teamOf(m_request.team);
    if (!m_request.team.empty() && !choice.team)
      return complain(kWrongUse,
                      "there is no team " + m_request.team + " in the games of " + m_request.source);
    const SeasonStatistics statistics(catalogue, catalogue.select(criteria), {m_request.team, std::nullopt});
    const bool isOfLines =
        which == SeasonReport::LineShots || which == SeasonReport::LineOther || which == SeasonReport::Line;
    const auto rows = isOfLines ? statistics.lines() : statistics.players();
    const auto named = isOfLines ? &SeasonRow::name : &SeasonRow::number;
    const auto chosen = std::ranges::find(rows, m_request.player, named);
    if (chosen != rows.end() && std::ranges::count(rows, m_request.player, named) > 1)
      return complain(kWrongUse, "several have the number " + m_request.player + "; say whose with --team");
    if (chosen != rows.end())
      choice.chosen = chosen->id;
    else if (!m_request.player.empty() || which == SeasonReport::Player || which == SeasonReport::Line)
      return complain(kWrongUse, m_request.player.empty()
                                     ? "--report " + m_request.kind + " needs --player or --line"
                                     : "nobody has the number " + m_request.player);
    report = seasonReport(which, statistics, choice, m_settings, m_texts);
    const bool isTooLong = m_request.format == "pdf" && rankedRows(report) > kLongestList;
    const int proposed = isTooLong ? static_cast<int>(kProposedRows) : 0;
    if (const int most = m_request.most.value_or(proposed); most > 0)
      keepBest(report, static_cast<std::size_t>(most), m_texts);
    return kGood;
  }
  int makeOfGame(const std::string& path, Report& report) {
    if (path.empty())
      return complain(kWrongUse, "--report " + m_request.kind + " needs a game, or a folder of games");
    Scorecard card(m_store, path);
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None)
      return complain(kFailed, path + ": " + explained(problem));
    if (m_request.kind == "play-by-play") {
      report = playByPlayReport(card.game(), card.state(), m_texts);
      return kGood;
    }
    ScorecardView view(m_texts);
    if (m_request.kind == "scorecard-lines")
      view.setView(BoxView::Lines);
    report = scorecardReport(card.game(), card.state(), view, m_settings, m_texts);
    return kGood;
  }
  int makeOfTeam(Report& report) {
    TeamStore teams(m_store, m_settings);
    for (const TeamEntry& entry : teams.list()) {
      if (entry.abbreviation + '-' + std::string(Module1::trimmed(entry.category)) != m_request.team)
        continue;
      const TeamRecord team = teams.read(entry.key);
      const std::vector<TeamPlayer> players = teams.players(entry.key);
      report = m_request.kind == "roster" ? rosterReport(team, players, m_texts)
                                          : preparedForms(team, players, m_texts);
      return kGood;
    }
    return complain(kWrongUse, m_request.team.empty()
                                   ? "--report " + m_request.kind + " needs --team ABBREVIATION-LEVEL"
                                   : "there is no team " + m_request.team + " in " + m_settings.path());
  }

  const ReportRequest& m_request;
  FileSystem m_files;
  cinifile m_store{m_files};
  Settings m_settings;
  Texts m_texts;
  std::error_code m_ignored; // what is no folder is taken for a file
};

} // namespace

int makeReport(const ReportRequest& request, const std::string& programFolder) {
  return ReportRun(request, programFolder).run();
}

} // namespace hooptab
