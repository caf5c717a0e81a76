// hooptab-cli: box scores, events and checks of game files, for scripts and for support; games from other
// systems and for them. What is given is only read.
#include "cli/ExchangeCommands.h"
#include "cli/InsightReports.h"
#include "cli/Options.h"
#include "cli/Output.h"
#include "cli/Reports.h"
#include "cli/SeasonReports.h"
#include "cli/ServeCommand.h"
#include "feed/BoxJson.h"
#include "feed/BoxText.h"
#include "feed/SeasonJson.h"
#include "resources/tables.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <exception>
#include <iostream>

namespace hooptab {

namespace {

enum ExitStatus { kGood = 0, kFound = 1, kWrongUse = 2 };

void complain(const std::string& text) {
  std::cerr << "hooptab-cli: " << printable(text) << '\n';
}

class Program {
 public:
  explicit Program(const Options& options) : m_options(options) { m_texts.setLanguage(options.language); }

  int run() {
    switch (m_options.command) {
    case CliCommand::Help:
      m_output.write(std::string(isFrench() ? commandLineUsage().french : commandLineUsage().english));
      break;
    case CliCommand::Season: season(m_options.files.front()); break;
    case CliCommand::Import: found(importGames(m_options, m_store, m_texts, m_output, complain)); break;
    case CliCommand::Export: found(exportGame(m_options, m_store, m_texts, m_output, complain)); break;
    case CliCommand::Serve: found(serveGames(m_options, m_texts, m_output, complain)); break;
    case CliCommand::Version: m_output.write("hooptab-cli " HOOPTAB_VERSION "\n"); break;
    default:
      m_json.beginArray();
      for (const std::string& file : m_options.files)
        show(file);
      m_json.endArray();
      if (isVerifiedAsJson())
        m_output.write(m_json.text());
    }
    if (m_output.error() != 0) {
      complain(words(Text::NoOutput, std::strerror(m_output.error())));
      m_status = kFound;
    }
    return m_status;
  }

 private:
  bool isFrench() const { return m_options.language == Language::French; }
  std::string words(Text text, const std::string& x = {}) const { return m_texts.withPlaceholder(text, x); }
  std::string of(const std::string& path, const std::string& text) const {
    return withPlaceholders(m_texts.text(Text::SubjectAndWords), path, text);
  }
  void fault(const std::string& text) {
    complain(text);
    m_status = kFound;
  }
  void found(bool isGood) {
    if (!isGood)
      m_status = kFound;
  }
  void season(const std::string& folder) {
    const SeasonOptions& wanted = m_options.season;
    GameCatalogue catalogue(m_files);
    switch (catalogue.scan({folder, wanted.withSubfolders})) {
    case ScanOutcome::FolderMissing: fault(of(folder, words(Text::NoSuchFolderThere))); return;
    case ScanOutcome::FolderUnreadable: fault(of(folder, words(Text::FolderUnreadable))); return;
    default: break;
    }
    if (!wanted.team.empty() && !catalogue.teamOf(wanted.team)) {
      fault(words(Text::NoGameOfTeam, wanted.team) + teamsMet(catalogue));
      return;
    }
    GameCriteria criteria;
    criteria.team = wanted.team;
    criteria.fromDay = wanted.fromDay;
    criteria.toDay = wanted.toDay;
    criteria.type = wanted.type;
    criteria.countsCopiesOnce = wanted.countsCopiesOnce;
    criteria.leavesOutWrong = wanted.leavesOutWrong;
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
  std::string teamsMet(const GameCatalogue& catalogue) const {
    std::string teams;
    for (const SeasonTeam& team : catalogue.teams())
      teams += (teams.empty() ? "" : ", ") + team.key;
    return teams.empty() ? teams : "; " + words(Text::ThereAre, teams);
  }
  // A broken file never stops the rest, but it is told.
  void tellFaults(const GameCatalogue& catalogue, const SeasonStatistics& statistics) {
    for (const SkippedFile& skipped : catalogue.skipped()) {
      if (skipped.reason == SkipReason::Unreadable || skipped.reason == SkipReason::TooLarge)
        fault(of(skipped.path, words(skipReasonText(skipped.reason))));
    }
    for (const std::size_t index : statistics.games()) {
      const ListedGame& game = catalogue.games()[index];
      if (!game.outOfRange.empty())
        fault(of(game.path, words(Text::CountAtItsLimit, game.outOfRange)));
      if (game.wrongCount > 0)
        complain(of(game.path, words(Text::CountedAllTheSame, catalogue.whyWrong(game, m_texts))));
      if (!game.copyOf || m_options.season.countsCopiesOnce)
        continue;
      const ListedGame& other = catalogue.games()[*game.copyOf];
      complain(of(game.path, words(game.fingerprint == other.fingerprint ? Text::SameGame : Text::SameGameCut,
                                   other.path)));
    }
  }
  void show(const std::string& file) {
    Scorecard card(m_store, file);
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None) {
      fault(of(file, gameProblemWords(problem, m_texts)));
      return;
    }
    if (m_options.command == CliCommand::Verify) {
      verify(card);
      return;
    }
    if (card.outOfRange())
      fault(of(file, tooMany(card)));
    if (needsEvents() && card.game().details.inputType != 0) {
      fault(of(file, words(Text::CliNoEventsForInsight)));
      return;
    }
    if (m_options.command == CliCommand::Compare) {
      compare(card);
      return;
    }
    m_output.write(report(card));
  }
  std::string report(const Scorecard& card) const {
    const bool isJson = m_options.format == OutputFormat::Json;
    if (m_options.command == CliCommand::Events)
      return eventsText(card.game(), m_texts);
    if (m_options.command == CliCommand::Lines)
      return isJson ? linesJson(*card.counted(), m_options.together)
                    : linesText(*card.counted(), m_options.together, m_texts);
    if (m_options.command == CliCommand::Flow)
      return isJson ? flowJson(*card.counted()) : flowText(*card.counted(), m_texts);
    switch (m_options.format) {
    case OutputFormat::Json: return boxJson(*card.counted(), card.path());
    case OutputFormat::Csv: return boxCsv(card, m_texts, m_options.csvReader);
    case OutputFormat::Text: break;
    }
    return boxText(*card.counted(), m_texts);
  }
  bool needsEvents() const {
    return m_options.command == CliCommand::Lines || m_options.command == CliCommand::Flow ||
           m_options.command == CliCommand::Compare;
  }
  void compare(const Scorecard& card) {
    ComparedPlayers players;
    for (std::size_t i = 0; i < m_options.players.size(); ++i) {
      const PlayerReference named = *PlayerReference::read(m_options.players[i]);
      const int entry = card.game().roster[*named.team].entryOf(named.jersey);
      if (entry == 0) {
        fault(of(card.path(), words(Text::CliNoSuchPlayer, m_options.players[i])));
        return;
      }
      if (!players)
        players.emplace();
      (*players)[i] = {*named.team, entry};
    }
    m_output.write(m_options.format == OutputFormat::Json ? compareJson(*card.counted(), players)
                                                          : compareText(*card.counted(), players, m_texts));
  }
  bool isVerifiedAsJson() const {
    return m_options.command == CliCommand::Verify && m_options.format == OutputFormat::Json;
  }
  void verify(const Scorecard& card) {
    if (std::ranges::any_of(card.findings(), &Finding::isWrong))
      m_status = kFound;
    if (isVerifiedAsJson())
      writeVerified(card, m_texts, m_json);
    else
      m_output.write(verifyText(card, m_texts));
  }
  std::string tooMany(const Scorecard& card) const {
    const CountOutOfRange& count = *card.outOfRange();
    return words(Text::CountAtItsLimit, card.game().details.abbreviation[count.team] + ' ' + count.what);
  }

  const Options& m_options;
  Texts m_texts;
  Output m_output;
  FileSystem m_files;
  ProfileStore m_store{m_files};
  JsonWriter m_json; // of all files that are verified
  int m_status = kGood;
};

} // namespace

} // namespace hooptab

int main(int argc, char* argv[]) {
  using namespace hooptab;
  std::signal(SIGXFSZ, SIG_IGN); // a file that grows over its limit is a write that fails
  const std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
  const Language language = languageOf(words, environmentLanguage());
  Texts texts;
  texts.setLanguage(language);
  try {
    const Options options = parseOptions(words, language);
    if (options.wrong) {
      complain(
          withPlaceholders(texts.text(Text::SeeUsage), inWords(options.wrong, texts), "hooptab-cli --help"));
      return kWrongUse;
    }
    return Program(options).run();
  } catch (const std::exception& error) {
    complain(texts.withPlaceholder(Text::WentWrong, error.what()));
    return kFound;
  }
}
