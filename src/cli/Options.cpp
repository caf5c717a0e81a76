#include "cli/Options.h"

#include "season/CalendarDay.h"
#include "storage/ChoiceTexts.h"
#include "storage/Module1.h"

#include <cstdlib>
#include <optional>
#include <string_view>

namespace hooptab {

namespace {

std::optional<CliCommand> commandOf(std::string_view word) {
  if (word == "box")
    return CliCommand::Box;
  if (word == "events")
    return CliCommand::Events;
  if (word == "verify")
    return CliCommand::Verify;
  if (word == "season")
    return CliCommand::Season;
  return std::nullopt;
}

std::optional<Language> languageOf(std::string_view word) {
  if (word == "en")
    return Language::English;
  if (word == "fr")
    return Language::French;
  return std::nullopt;
}

class Parser {
 public:
  Parser(const std::vector<std::string>& words, Language language) : m_words(words) {
    m_options.language = language;
  }

  Options parse() && {
    bool takesOptions = true;
    for (m_next = 0; m_next < m_words.size() && m_options.error.empty();) {
      const std::string& word = m_words[m_next++];
      if (takesOptions && word == "--")
        takesOptions = false;
      else if (takesOptions && word.size() > 1 && word[0] == '-')
        takeOption(word);
      else if (!m_command)
        takeCommand(word);
      else
        m_options.files.push_back(word);
      if (m_isAnswered)
        return std::move(m_options);
    }
    if (m_options.error.empty())
      checkWhole();
    return std::move(m_options);
  }

 private:
  void takeOption(std::string_view word) {
    if (word == "--help" || word == "-h") {
      answer(CliCommand::Help);
    } else if (word == "--version") {
      answer(CliCommand::Version);
    } else if (word == "--json" || word == "--csv") {
      setFormat(word == "--json" ? OutputFormat::Json : OutputFormat::Csv);
    } else if (const auto reader = valueOf(word, "--csv-for")) {
      setFormat(OutputFormat::Csv);
      m_options.csvReader = CsvReader::French;
      if (*reader != "fr")
        m_options.error = "--csv-for needs fr";
    } else if (const auto language = valueOf(word, "--lang")) {
      setLanguage(*language);
    } else {
      takeSeasonOption(word);
    }
  }
  void setFormat(OutputFormat format) {
    if (m_options.format != OutputFormat::Text && m_options.format != format)
      m_options.error = "--json and --csv do not go together";
    m_options.format = format;
  }
  void takeSeasonOption(std::string_view word) {
    SeasonOptions& season = m_options.season;
    m_seasonOption = word;
    if (word == "--subfolders") {
      season.withSubfolders = true;
    } else if (word == "--once") {
      season.countsCopiesOnce = true;
    } else if (const auto team = valueOf(word, "--team")) {
      season.team = *team;
      if (team->empty())
        m_options.error = "--team needs a team, as its abbreviation and category: LYNX-AAA";
    } else if (const auto from = valueOf(word, "--from")) {
      setDay(season.fromDay, "--from", *from);
    } else if (const auto to = valueOf(word, "--to")) {
      setDay(season.toDay, "--to", *to);
    } else if (const auto type = valueOf(word, "--type")) {
      const int number = Module1::wholeNumber(*type);
      if (number < 0 || gameTypeOf(number) != number)
        m_options.error = "--type needs a type of game, 0 to 5 or 9; there is no type " + std::string(*type);
      season.type = number;
    } else if (const auto games = valueOf(word, "--min-games")) {
      setNumber(season.minimum.gamesPercent, "--min-games", *games, Qualification::kMostPercent);
    } else if (const auto minutes = valueOf(word, "--min-minutes")) {
      setNumber(season.minimum.minutes, "--min-minutes", *minutes, Qualification::kMostMinutes);
    } else if (const auto attempts = valueOf(word, "--min-attempts")) {
      setNumber(season.minimum.attempts, "--min-attempts", *attempts, Qualification::kMostAttempts);
    } else {
      m_options.error = "there is no option " + std::string(word);
    }
  }
  void setNumber(int& number, const std::string& option, std::string_view text, int most) {
    const int given = Module1::wholeNumber(text);
    if (given < 0 || given > most)
      m_options.error = option + " needs a whole number, 0 to " + std::to_string(most);
    else
      number = given;
  }
  void setDay(std::optional<int>& day, const std::string& option, std::string_view text) {
    day = calendarDay(text);
    if (!day)
      m_options.error = option + " needs a date, yyyy-mm-dd";
  }
  // The value of "--option value" or "--option=value"; empty where it is missing, nothing for another option.
  std::optional<std::string> valueOf(std::string_view word, std::string_view option) {
    if (word == option)
      return m_next < m_words.size() ? m_words[m_next++] : std::string();
    if (word.starts_with(option) && word.substr(option.size()).starts_with('='))
      return std::string(word.substr(option.size() + 1));
    return std::nullopt;
  }
  // Help and version are given whatever else was asked for.
  void answer(CliCommand command) {
    m_options.command = command;
    m_isAnswered = true;
  }
  void setLanguage(std::string_view word) {
    if (const auto language = languageOf(word))
      m_options.language = *language;
    else
      m_options.error = "--lang needs en or fr";
  }
  void takeCommand(const std::string& word) {
    m_command = commandOf(word);
    if (m_command)
      m_options.command = *m_command;
    else
      m_options.error = "there is no command " + word;
  }
  void checkWhole() {
    if (m_options.csvReader == CsvReader::French)
      m_options.language = Language::French; // its heads are French
    if (!m_command)
      m_options.error = "a command is missing";
    else if (m_options.format != OutputFormat::Text && *m_command != CliCommand::Box &&
             *m_command != CliCommand::Season)
      m_options.error = "--json and --csv go with box and season only";
    else if (!m_seasonOption.empty() && *m_command != CliCommand::Season)
      m_options.error = m_seasonOption + " goes with season only";
    else if (m_options.files.empty())
      m_options.error = *m_command == CliCommand::Season ? "a folder is missing" : "a file is missing";
    else if (m_options.files.size() > 1 && *m_command != CliCommand::Verify)
      m_options.error = "only verify takes more than one file";
  }

  const std::vector<std::string>& m_words;
  std::size_t m_next = 0;
  std::optional<CliCommand> m_command;
  std::string m_seasonOption; // the last one met
  bool m_isAnswered = false;
  Options m_options;
};

} // namespace

Options parseOptions(const std::vector<std::string>& words, Language usualLanguage) {
  return Parser(words, usualLanguage).parse();
}

Language environmentLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* const value = std::getenv(name);
    if (value != nullptr && *value != '\0')
      return std::string_view(value).starts_with("fr") ? Language::French : Language::English;
  }
  return Language::English;
}

std::string cliUsage() {
  return R"(Usage: hooptab-cli COMMAND [OPTION...] FILE...

Commands:
  box FILE         the box score of a game; as a table of text, or:
    --json           as JSON, with lines of players; the same in every language
    --csv            as CSV, one row a player and one a team's total
  events FILE      the events of a game in words
  verify FILE...   names what is wrong in games; a warning alone leaves a game good
  season FOLDER    the statistics of all finished games of a folder; as tables of text, or:
    --json           as JSON, with lines of players and leaders; the same in every language
    --csv            as CSV, players and lines in totals, per game, per minute and per 40 minutes
    --team ABB-CAT   only games of this team, and its own players: LYNX-AAA
    --from, --to D   only games from and up to a date, yyyy-mm-dd
    --type N         only games of a type: 0 practice, 1 pre-season, 2 season, 3 play-off,
                     4 tournament, 5 exhibition, 9 other
    --subfolders     also the games of its sub-folders
    --once           counts a game once whose file is there twice
    --min-games P, --min-minutes M, --min-attempts A
                     what players need to lead: P % of the games of their team (70), M minutes (10)
                     and, for percentages, A attempts (2) for each game of the team; rows of averages
                     under it are marked with *

Options:
  --csv-for fr     as --csv, for spreadsheets of a French-speaking system: ";" between the cells, a
                   decimal comma, a byte-order mark, and French heads
  --lang en|fr     the language of tables and words (usually that of LANG)
  --help           this text
  --version        the program's version

Exit status: 0 when all is well; 1 when verify finds something, or a file cannot be read; 2 for a
command line that is not understood.
)";
}

} // namespace hooptab
