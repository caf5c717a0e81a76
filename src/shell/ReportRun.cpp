#include "shell/ReportRun.h"

#include "catalogue/GameFinder.h"
#include "formula/FormulaRating.h"
#include "printing/GamesFiles.h"
#include "report/GameReports.h"
#include "report/ReportWords.h"
#include "report/SeasonReports.h"
#include "report/TeamReports.h"
#include "scorecard/Scorecard.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"
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
      return complain(kWrongUse, words(Text::UnknownFormat, m_request.format));
    if (!m_request.games.empty())
      return writeGames(m_request.games, *form);
    if (ofGame() != nullptr && std::filesystem::is_directory(m_request.source, m_ignored))
      return writeGames({m_request.source}, *form);
    Report report;
    if (const int status = make(report); status != kGood)
      return status;
    return write(report, *form, m_request.output);
  }

 private:
  std::string words(Text text, const std::string& x = {}, const std::string& y = {}) const {
    return withPlaceholders(m_texts.text(text), x, y);
  }
  std::string withReason(const std::string& path, Text text) const {
    return words(Text::SubjectAndWords, path, words(text));
  }
  int complainOf(ExitStatus status, const std::string& path, Text text) const {
    return complain(status, withReason(path, text));
  }
  int complainOfMissing(const std::string& what) const {
    return complain(kWrongUse, words(Text::OptionNeeds, "--report " + m_request.kind, what));
  }

  // Of one game; null for any other.
  const GameReport* ofGame() const {
    const auto found = std::ranges::find(gameReports(), m_request.kind, &GameReport::word);
    return found == gameReports().end() ? nullptr : &*found;
  }

  // A file for each in a folder that is there, or one file of all. `sources` are games and folders of games.
  int writeGames(const std::vector<std::string>& sources, ReportForm form) {
    std::vector<std::string> paths;
    for (const std::string& source : sources) {
      if (!std::filesystem::is_directory(source, m_ignored)) {
        paths.push_back(source);
        continue;
      }
      const FoundGames found = findGames(m_files, {source});
      if (found.outcome != ScanOutcome::Done || found.paths.empty())
        return complainOf(kFailed, source, Text::NoGameInFolder);
      paths.insert(paths.end(), found.paths.begin(), found.paths.end());
    }
    if (std::filesystem::is_directory(m_request.output, m_ignored))
      return writeEachGame(paths, form);
    // A folder that is missing is no file without an ending.
    const bool isFile = m_request.output.ends_with('.' + std::string(endingOf(form)));
    if (m_request.kind == "sheet" && isFile)
      return writeOneFile(std::move(paths), form);
    return complainOf(kWrongUse, m_request.output, Text::OutputMustBeFolder);
  }

  // Finished or not, each under the name that the preview would propose. One game that cannot be reported
  // does not keep the others from it.
  int writeEachGame(const std::vector<std::string>& paths, ReportForm form) {
    ExitStatus status = kGood;
    for (const std::string& game : paths) {
      Report report;
      if (makeOfGame(game, report) != kGood ||
          write(report, form, m_request.output + '/' + report.fileName + '.' + std::string(endingOf(form))) !=
              kGood)
        status = kFailed;
    }
    return status;
  }

  int writeOneFile(std::vector<std::string> paths, ReportForm form) {
    GamesOrder order;
    order.games = std::move(paths);
    if (form == ReportForm::Pdf)
      order.pdf = m_request.output;
    else if (form == ReportForm::Xlsx)
      order.workbook = m_request.output;
    else
      return complain(kWrongUse, words(Text::NoSuchFormat, m_request.format));
    order.title = m_request.title;
    order.paper = m_request.isLetter ? Paper::Letter : Paper::A4;
    const GamesOutcome outcome = hooptab::writeGames(m_files, order, m_texts);
    for (const GamePages::PassedOver& game : outcome.passedOver)
      (void)complain(kFailed, words(Text::WeekendPassedOver, game.path, words(game.why)));
    if (!outcome.hasGames)
      return complain(kFailed, words(Text::WeekendNothing));
    if (!outcome.isMade)
      return complain(kFailed, words(Text::ReportNotMade));
    if (!outcome.failed.empty())
      return complainOf(kFailed, outcome.failed, Text::CannotBeWritten);
    return outcome.passedOver.empty() ? kGood : kFailed;
  }

  int write(Report& report, ReportForm form, const std::string& output) {
    if (!m_request.title.empty())
      report.title = m_request.title;
    if (!canBe(report, form))
      return complain(kWrongUse, words(Text::NoSuchFormat, m_request.format));
    PageFormat format;
    format.paper = m_request.isLetter ? Paper::Letter : Paper::A4;
    const auto contents = filesOf(report, form, format, factsOf(m_texts.language()).code);
    if (!contents)
      return complain(kFailed, words(Text::ReportNotMade));
    const std::string failed = writeFiles(m_files, output, *contents);
    return failed.empty() ? kGood : complainOf(kFailed, failed, Text::CannotBeWritten);
  }

  int make(Report& report) {
    const std::string& kind = m_request.kind;
    if (ofGame() != nullptr)
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
    return complain(kWrongUse, words(Text::SeeUsage, words(Text::UnknownReport, kind), "hooptab --help"));
  }
  int makeOfSeason(SeasonReport which, Report& report) {
    if (m_request.source.empty())
      return complainOfMissing(words(Text::AFolderOfGames));
    GameCatalogue catalogue(m_files);
    if (catalogue.scan({m_request.source}) != ScanOutcome::Done)
      return complainOf(kFailed, m_request.source, Text::NoFolderOrUnreadable);
    for (const SkippedFile& skipped : catalogue.skipped())
      (void)complain(kGood,
                     words(Text::LeftOutWhat, withReason(skipped.path, skipReasonText(skipped.reason))));
    if (catalogue.games().empty())
      return complainOf(kFailed, m_request.source, Text::NoFinishedGameThere);
    GameCriteria criteria;
    criteria.team = m_request.team;
    SeasonReportChoice choice;
    choice.minimum = m_request.minimum;
    if (reportFormOf(m_request.format) != ReportForm::Csv) // whose columns are the same for everybody
      choice.ownRating = SeasonRating::of(m_settings.ownRating, readFormula);
    choice.team = catalogue.teamOf(m_request.team);
    if (!m_request.team.empty() && !choice.team)
      return complain(kWrongUse, words(Text::NoTeamIn, m_request.team, m_request.source));
    if (isOfTeam(which) && !choice.team)
      return complainOfMissing("--team");
    choice.reader = catalogue.teamOf(m_request.reader);
    if (!m_request.reader.empty() && !choice.reader)
      return complain(kWrongUse, words(Text::NoTeamIn, m_request.reader, m_request.source));
    const std::vector<std::size_t> games = catalogue.select(criteria);
    for (const std::size_t game : games) {
      const ListedGame& told = catalogue.games()[game];
      if (told.wrongCount > 0)
        (void)complain(kGood, words(Text::SubjectAndWords, told.path,
                                    words(Text::OneCountedAllTheSame, catalogue.whyWrong(told, m_texts))));
    }
    const SeasonStatistics statistics(catalogue, games, {m_request.team, std::nullopt});
    const bool isOfLines =
        which == SeasonReport::LineShots || which == SeasonReport::LineOther || which == SeasonReport::Line;
    const auto rows = isOfLines ? statistics.lines() : statistics.players();
    const auto named = isOfLines ? &SeasonRow::name : &SeasonRow::number;
    const auto chosen = std::ranges::find(rows, m_request.player, named);
    if (chosen != rows.end() && std::ranges::count(rows, m_request.player, named) > 1)
      return complain(kWrongUse, words(Text::SeveralHaveTheNumber, m_request.player));
    if (chosen != rows.end())
      choice.chosen = chosen->id;
    else if (!m_request.player.empty() || isOfPerson(which))
      return m_request.player.empty()
                 ? complainOfMissing("--player|--line")
                 : complain(kWrongUse, words(Text::NobodyHasTheNumber, m_request.player));
    report = seasonReport(which, statistics, choice, m_settings, m_texts);
    const bool isTooLong = m_request.format == "pdf" && rankedRows(report) > kLongestList;
    const int proposed = isTooLong ? static_cast<int>(kProposedRows) : 0;
    if (const int most = m_request.most.value_or(proposed); most > 0)
      keepBest(report, static_cast<std::size_t>(most), m_texts);
    return kGood;
  }
  int makeOfGame(const std::string& path, Report& report) {
    if (path.empty())
      return complainOfMissing(words(Text::AGameOrAFolder));
    Scorecard card(m_store, path);
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None)
      return complainOf(kFailed, path, whyNotRead(problem));
    report = ofGame()->make(card.counted(), ScorecardView(m_texts), m_settings, m_texts);
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
    return m_request.team.empty()
               ? complainOfMissing("--team")
               : complain(kWrongUse, words(Text::NoTeamIn, m_request.team, m_settings.path()));
  }

  const ReportRequest& m_request;
  FileSystem m_files;
  ProfileStore m_store{m_files};
  Settings m_settings;
  Texts m_texts;
  std::error_code m_ignored; // what is no folder is taken for a file
};

} // namespace

int makeReport(const ReportRequest& request, const std::string& programFolder) {
  return ReportRun(request, programFolder).run();
}

} // namespace hooptab
