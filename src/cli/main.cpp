// hooptab-cli: box scores, events and checks of game files, for scripts and for support. Writes to no file.
#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Reports.h"
#include "cli/SeasonReports.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>

namespace hooptab {

namespace {

const std::string kOutOfRange = "a count is out of range and stays at its limit: ";

enum ExitStatus { kGood = 0, kFound = 1, kWrongUse = 2 };

void complain(const std::string& text) {
  std::cerr << "hooptab-cli: " << printable(text) << '\n';
}

std::string explained(GameFileProblem problem) {
  switch (problem) {
  case GameFileProblem::Absent: return "there is no such file; check its name and folder";
  case GameFileProblem::TooLarge: return "the file is too large to be a game; give a .GAM file";
  case GameFileProblem::InvalidFormat:
    return "Invalid File Format (Not a Valid .GAM File); give a game that HOOPTAB recorded";
  default: return "cannot be read; give a file, not a folder, and check that you may read it";
  }
}

class Program {
 public:
  explicit Program(const Options& options) : m_options(options) { m_texts.setLanguage(options.language); }

  int run() {
    switch (m_options.command) {
    case CliCommand::Help: m_output.write(cliUsage()); break;
    case CliCommand::Season: season(m_options.files.front()); break;
    case CliCommand::Version: m_output.write("hooptab-cli " HOOPTAB_VERSION "\n"); break;
    default:
      for (const std::string& file : m_options.files)
        show(file);
    }
    if (m_output.error() != 0) {
      complain(std::string("the output cannot be written: ") + std::strerror(m_output.error()));
      m_status = kFound;
    }
    return m_status;
  }

 private:
  void fault(const std::string& text) {
    complain(text);
    m_status = kFound;
  }
  void season(const std::string& folder) {
    const SeasonOptions& wanted = m_options.season;
    GameCatalogue catalogue(m_files);
    ScanWatch watch;
    switch (catalogue.scan({folder, wanted.withSubfolders}, watch)) {
    case ScanOutcome::FolderMissing: fault(folder + ": there is no such folder"); return;
    case ScanOutcome::FolderUnreadable: fault(folder + ": the folder cannot be read"); return;
    default: break;
    }
    if (!wanted.team.empty() && !catalogue.teamOf(wanted.team)) {
      fault("no game of team " + wanted.team + teamsMet(catalogue));
      return;
    }
    GameCriteria criteria;
    criteria.team = wanted.team;
    criteria.fromDay = wanted.fromDay;
    criteria.toDay = wanted.toDay;
    criteria.type = wanted.type;
    criteria.countsCopiesOnce = wanted.countsCopiesOnce;
    const SeasonStatistics statistics(catalogue, catalogue.select(criteria), {wanted.team, std::nullopt});
    tellFaults(catalogue, statistics);
    m_output.write(seasonReport(statistics));
  }
  std::string seasonReport(const SeasonStatistics& statistics) const {
    const std::optional<SeasonId> team = statistics.catalogue().teamOf(m_options.season.team);
    switch (m_options.format) {
    case OutputFormat::Json: return seasonJson(statistics, team, m_options.season.minimum);
    case OutputFormat::Csv:
      return seasonCsv(statistics, m_options.season.minimum, m_texts, m_options.csvReader);
    case OutputFormat::Text: break;
    }
    return seasonText(statistics, team, m_options.season.minimum, m_texts);
  }
  static std::string teamsMet(const GameCatalogue& catalogue) {
    std::string text;
    for (const SeasonTeam& team : catalogue.teams())
      text += (text.empty() ? "; there are " : ", ") + team.key;
    return text;
  }
  // A broken file never stops the rest, but it is told.
  void tellFaults(const GameCatalogue& catalogue, const SeasonStatistics& statistics) {
    for (const SkippedFile& skipped : catalogue.skipped()) {
      if (skipped.reason == SkipReason::Unreadable || skipped.reason == SkipReason::TooLarge)
        fault(skipped.path + ": " + skipReasonInEnglish(skipped.reason));
    }
    for (const std::size_t index : statistics.games()) {
      const ListedGame& game = catalogue.games()[index];
      if (!game.outOfRange.empty())
        fault(game.path + ": " + kOutOfRange + game.outOfRange);
      if (!game.copyOf || m_options.season.countsCopiesOnce)
        continue;
      const ListedGame& other = catalogue.games()[*game.copyOf];
      complain(game.path + ": the same game as " + other.path +
               (game.fingerprint == other.fingerprint ? ", and" : ", with other events (one is cut?), and") +
               " counted again; --once counts it once");
    }
  }
  void show(const std::string& file) {
    Scorecard card(m_store, file);
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None) {
      fault(file + ": " + explained(problem));
      return;
    }
    if (m_options.command == CliCommand::Verify) {
      verify(card);
      return;
    }
    if (card.outOfRange())
      fault(file + ": " + tooMany(card));
    m_output.write(report(card));
  }
  std::string report(const Scorecard& card) const {
    if (m_options.command == CliCommand::Events)
      return eventsText(card.game(), m_texts);
    switch (m_options.format) {
    case OutputFormat::Json: return boxJson(card);
    case OutputFormat::Csv: return boxCsv(card, m_texts, m_options.csvReader);
    case OutputFormat::Text: break;
    }
    return boxText(card, m_texts);
  }
  void verify(const Scorecard& card) {
    std::vector<GameFinding> findings = checkGame(card.game());
    if (card.outOfRange())
      findings.push_back({false, 0, {}, {}, tooMany(card)});
    m_output.write(verifyText(card.game(), findings));
    if (!std::ranges::all_of(findings, &GameFinding::isWarning))
      m_status = kFound;
  }
  static std::string tooMany(const Scorecard& card) {
    const CountOutOfRange& count = *card.outOfRange();
    return kOutOfRange + card.game().details.abbreviation[count.team] + ' ' + count.what;
  }

  const Options& m_options;
  Texts m_texts;
  Output m_output;
  FileSystem m_files;
  cinifile m_store{m_files};
  int m_status = kGood;
};

} // namespace

} // namespace hooptab

int main(int argc, char* argv[]) {
  using namespace hooptab;
  std::signal(SIGXFSZ, SIG_IGN); // a file that grows over its limit is a write that fails
  try {
    const Options options = parseOptions({argv + std::min(argc, 1), argv + argc}, environmentLanguage());
    if (!options.error.empty()) {
      complain(options.error + "; see hooptab-cli --help");
      return kWrongUse;
    }
    return Program(options).run();
  } catch (const std::exception& error) {
    complain(std::string("failed: ") + error.what());
    return kFound;
  }
}
