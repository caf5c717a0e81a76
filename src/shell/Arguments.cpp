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
    "--report", "--format",  "--output",    "--team",        "--player",       "--line", "--title",
    "--paper",  "--csv-for", "--min-games", "--min-minutes", "--min-attempts", "--top",  "--for"};

class Parser {
 public:
  Parser(const std::vector<std::string>& words, const std::string& currentFolder)
      : m_word(words.begin()), m_end(words.end()), m_currentFolder(currentFolder) {}

  Arguments parse() {
    bool onlyGamesFollow = false;
    for (; m_word != m_end && !m_result.wrong; ++m_word) {
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
    if (option != "--folder" && option != "--lang" && !isOfReport) {
      m_result.wrong = {Text::NoOption, *m_word};
      return;
    }
    std::string value;
    if (equal != std::string::npos)
      value = m_word->substr(equal + 1);
    else if (std::next(m_word) != m_end)
      value = *++m_word;
    if (value.empty())
      m_result.wrong = {Text::NeedsValue, option};
    else if (isOfReport)
      takeOfReport(option, value);
    else if (option == "--lang")
      takeLanguage(value);
    else
      m_result.folder = absolutePath(value, m_currentFolder);
  }
  void takeLanguage(const std::string& value) {
    m_result.language = languageNamed(value);
    if (!m_result.language)
      m_result.wrong = {Text::CannotBe, "--lang", value};
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
    else if (option == "--for")
      report.reader = value;
    else if (option == "--player" || option == "--line")
      report.player = value;
    else if (option == "--title")
      report.title = value;
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
      m_result.wrong = {Text::CannotBe, option, value};
  }

  std::vector<std::string>::const_iterator m_word;
  const std::vector<std::string>::const_iterator m_end;
  const std::string& m_currentFolder;
  Arguments m_result;
};

// Options of a report without the report, or a report without a place, are a mistake.
void completeReport(Arguments& arguments) {
  ReportRequest& report = *arguments.report;
  report.language = arguments.language;
  if (report.kind.empty())
    arguments.wrong = {Text::IsMissing, "--report"};
  else if (report.output.empty())
    arguments.wrong = {Text::OptionNeeds, "--report", "-o"};
  else if (arguments.games.size() > 1 && report.kind == "sheet")
    report.games = arguments.games;
  else if (arguments.games.size() > 1)
    arguments.wrong = {Text::OneGame};
  else if (!arguments.games.empty())
    report.source = arguments.games.front();
  if (report.format.empty() && report.isForFrenchSpreadsheets)
    report.format = "csv";
  else if (report.isForFrenchSpreadsheets && report.format != "csv")
    arguments.wrong = {Text::NotTogether, "--csv-for", "--format " + report.format};
  if (report.format.empty())
    report.format = std::filesystem::path(report.output).extension().string().erase(0, 1);
}

} // namespace

Arguments parseArguments(const std::vector<std::string>& words, const std::string& currentFolder) {
  Arguments result = Parser(words, currentFolder).parse();
  if (!result.wrong && result.report)
    completeReport(result);
  return result;
}

} // namespace hooptab
