#include "shell/Arguments.h"

#include "storage/Module1.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

namespace hooptab {

namespace {

std::string absolutePath(const std::string& path, const std::string& currentFolder) {
  return (std::filesystem::path(currentFolder) / path).lexically_normal().string();
}

// What belongs to a report and takes a value.
constexpr std::string_view kReportOptions[] = {
    "--report", "--format", "--output",  "--team",      "--player",      "--line",         "--title",
    "--lang",   "--paper",  "--csv-for", "--min-games", "--min-minutes", "--min-attempts", "--top"};

class Parser {
 public:
  Parser(const std::vector<std::string>& words, const std::string& currentFolder)
      : m_word(words.begin()), m_end(words.end()), m_currentFolder(currentFolder) {}

  Arguments parse() {
    bool onlyGamesFollow = false;
    for (; m_word != m_end && m_result.error.empty(); ++m_word) {
      if (onlyGamesFollow || !m_word->starts_with('-') || *m_word == "-") {
        if (!m_word->empty())
          m_result.games.push_back(absolutePath(*m_word, m_currentFolder));
      } else if (*m_word == "--") {
        onlyGamesFollow = true;
      } else if (!takeFlag(*m_word)) {
        takeValue();
      }
    }
    return std::move(m_result);
  }

 private:
  bool takeFlag(const std::string& word) {
    if (word == "--light")
      m_result.colourScheme = ColourScheme::Light;
    else if (word == "--dark")
      m_result.colourScheme = ColourScheme::Dark;
    else if (word == "--help" || word == "-h")
      m_result.asksForHelp = true;
    else if (word == "--version")
      m_result.asksForVersion = true;
    else if (word == "--leave-when-ready")
      m_result.leavesWhenReady = true;
    else if (word == "--rehearsal")
      m_result.isRehearsal = true;
    else
      return false;
    return true;
  }
  // "--folder DIR" or "--folder=DIR".
  void takeValue() {
    const std::size_t equal = m_word->starts_with("--") ? m_word->find('=') : std::string::npos;
    std::string option = m_word->substr(0, equal);
    if (option == "-o")
      option = "--output";
    const bool isOfReport = std::ranges::find(kReportOptions, option) != std::end(kReportOptions);
    if (option != "--folder" && !isOfReport) {
      m_result.error = "unknown option " + *m_word;
      return;
    }
    std::string value;
    if (equal != std::string::npos)
      value = m_word->substr(equal + 1);
    else if (std::next(m_word) != m_end)
      value = *++m_word;
    if (value.empty())
      m_result.error =
          option == "--folder" ? "--folder needs the name of a folder" : option + " needs a value";
    else if (isOfReport)
      takeOfReport(option, value);
    else
      m_result.folder = absolutePath(value, m_currentFolder);
  }
  static bool isUpTo(const std::string& value, int most) {
    const int number = Module1::wholeNumber(value);
    return number >= 0 && number <= most;
  }
  void takeOfReport(const std::string& option, const std::string& value) {
    if (!m_result.report)
      m_result.report.emplace();
    ReportRequest& report = *m_result.report;
    if (option == "--report")
      report.kind = value;
    else if (option == "--format")
      report.format = value;
    else if (option == "--output")
      report.output = absolutePath(value, m_currentFolder);
    else if (option == "--team")
      report.team = value;
    else if (option == "--player" || option == "--line")
      report.player = value;
    else if (option == "--title")
      report.title = value;
    else if (option == "--lang" && (value == "en" || value == "fr"))
      report.language = value == "fr" ? Language::French : Language::English;
    else if (option == "--paper" && (value == "a4" || value == "letter"))
      report.isLetter = value == "letter";
    else if (option == "--csv-for" && value == "fr")
      report.isForFrenchSpreadsheets = true;
    else if (option == "--top" && Module1::wholeNumber(value) >= 0)
      report.most = Module1::wholeNumber(value);
    else if (option == "--min-games" && isUpTo(value, Qualification::kMostPercent))
      report.minimum.gamesPercent = Module1::wholeNumber(value);
    else if (option == "--min-minutes" && isUpTo(value, Qualification::kMostMinutes))
      report.minimum.minutes = Module1::wholeNumber(value);
    else if (option == "--min-attempts" && isUpTo(value, Qualification::kMostAttempts))
      report.minimum.attempts = Module1::wholeNumber(value);
    else
      m_result.error = option + " cannot be " + value;
  }

  std::vector<std::string>::const_iterator m_word;
  const std::vector<std::string>::const_iterator m_end;
  const std::string& m_currentFolder;
  Arguments m_result;
};

// Options of a report without the report, or a report without a place, are a mistake.
void completeReport(Arguments& arguments) {
  ReportRequest& report = *arguments.report;
  if (report.kind.empty())
    arguments.error = "--report is missing";
  else if (report.output.empty())
    arguments.error = "--report needs -o FILE";
  else if (arguments.games.size() > 1)
    arguments.error = "--report takes one game";
  else if (!arguments.games.empty())
    report.source = arguments.games.front();
  if (report.format.empty())
    report.format = std::filesystem::path(report.output).extension().string().erase(0, 1);
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& words, const std::string& currentFolder) {
  Arguments result = Parser(words, currentFolder).parse();
  if (result.error.empty() && result.report)
    completeReport(result);
  return result;
}

std::string usage() {
  return "Usage: hooptab [--folder DIR] [--light|--dark] [GAME.GAM ...]\n"
         "Records basketball games and shows their scorecards. The games named are opened.\n"
         "\n"
         "  --folder DIR   the program folder, which holds the settings (CONFIG.INI)\n"
         "  --light        light colours\n"
         "  --dark         dark colours\n"
         "  --leave-when-ready\n"
         "                 print \"ready\" as soon as the window stands, and leave; checks an installation\n"
         "  --rehearsal    take the game clock's time from standard input, for tests; CONTRIBUTING.md tells "
         "how\n"
         "  --help         print this text\n"
         "  --version      print the version\n"
         "\n"
         "Without a window: hooptab --report KIND [--format F] -o FILE [GAME.GAM|FOLDER]\n"
         "  --report KIND  scorecard, scorecard-lines or play-by-play of a game, or of each game of a "
         "folder;\n"
         "                 roster or forms of a team (--team); blank-forms;\n"
         "                 of a folder of games: team-summary, team-detail, player-shots, line-shots, "
         "player-other,\n"
         "                 line-other, leaders, leaders-per-game, leaders-per-minute, player, line\n"
         "  --format F     pdf, xlsx, csv, html or png; without it, the ending of FILE decides\n"
         "  -o FILE        the file to write; it is replaced as a whole; for each game of a folder, a folder "
         "that\n"
         "                 is there, with --format\n"
         "  --team T       the team, ABBREVIATION-LEVEL\n"
         "  --player N, --line N-N-N-N-N\n"
         "                 whose performance is reported, or who is highlighted\n"
         "  --title TEXT   in place of the report's own title\n"
         "  --lang en|fr   the language; without it, that of the settings\n"
         "  --paper a4|letter\n"
         "                 the paper, A4 without it\n"
         "  --top N        of the players or lines of a season, the first N; 0: all; without it a PDF has "
         "the first 25\n"
         "                 of more than 60\n"
         "  --csv-for fr   csv for spreadsheets of a French-speaking system: semicolons, decimal commas, "
         "French heads\n"
         "  --min-games P, --min-minutes M, --min-attempts A\n"
         "                 what players need to lead a season: P % of the games of their team (70), M "
         "minutes "
         "(10)\n"
         "                 and, for percentages, A attempts (2) for each game of the team\n";
}

} // namespace hooptab
