#include "cli/Options.h"

#include "settings/ChoiceTexts.h"
#include "storage/CalendarDay.h"
#include "storage/Module1.h"

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

class Parser {
 public:
  Parser(const std::vector<std::string>& words, Language language) : m_words(words) {
    m_options.language = language;
  }

  Options parse() && {
    bool takesOptions = true;
    for (m_next = 0; m_next < m_words.size() && !m_options.wrong;) {
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
    if (!m_options.wrong)
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
        m_options.wrong = {Text::CsvForNeeds};
    } else if (const auto language = valueOf(word, "--lang")) {
      setLanguage(*language);
    } else {
      takeSeasonOption(word);
    }
  }
  void setFormat(OutputFormat format) {
    if (m_options.format != OutputFormat::Text && m_options.format != format)
      m_options.wrong = {Text::NotTogether, "--json", "--csv"};
    m_options.format = format;
  }
  void takeSeasonOption(std::string_view word) {
    SeasonOptions& season = m_options.season;
    m_seasonOption = word;
    if (word == "--subfolders") {
      season.withSubfolders = true;
    } else if (word == "--once") {
      season.countsCopiesOnce = true;
    } else if (word == "--leave-out-wrong") {
      season.leavesOutWrong = true;
    } else if (const auto team = valueOf(word, "--team")) {
      season.team = *team;
      if (team->empty())
        m_options.wrong = {Text::OptionNeedsTeam};
    } else if (const auto from = valueOf(word, "--from")) {
      setDay(season.fromDay, "--from", *from);
    } else if (const auto to = valueOf(word, "--to")) {
      setDay(season.toDay, "--to", *to);
    } else if (const auto type = valueOf(word, "--type")) {
      const int number = Module1::wholeNumber(*type);
      if (number < 0 || gameTypeOf(number) != number)
        m_options.wrong = {Text::NeedsType, std::string(*type)};
      season.type = number;
    } else if (const auto games = valueOf(word, "--min-games")) {
      setNumber(season.minimum.gamesPercent, "--min-games", *games, Qualification::kMostPercent);
    } else if (const auto minutes = valueOf(word, "--min-minutes")) {
      setNumber(season.minimum.minutes, "--min-minutes", *minutes, Qualification::kMostMinutes);
    } else if (const auto attempts = valueOf(word, "--min-attempts")) {
      setNumber(season.minimum.attempts, "--min-attempts", *attempts, Qualification::kMostAttempts);
    } else {
      m_options.wrong = {Text::NoOption, std::string(word)};
    }
  }
  void setNumber(int& number, const std::string& option, std::string_view text, int most) {
    const int given = Module1::wholeNumber(text);
    if (given < 0 || given > most)
      m_options.wrong = {Text::NeedsNumber, option, std::to_string(most)};
    else
      number = given;
  }
  void setDay(std::optional<int>& day, const std::string& option, std::string_view text) {
    day = calendarDay(text);
    if (!day)
      m_options.wrong = {Text::NeedsDate, option};
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
    if (const auto language = languageNamed(word))
      m_options.language = *language;
    else
      m_options.wrong = {Text::OptionNeeds, "--lang", "en|fr"};
  }
  void takeCommand(const std::string& word) {
    m_command = commandOf(word);
    if (m_command)
      m_options.command = *m_command;
    else
      m_options.wrong = {Text::NoCommand, word};
  }
  static bool fits(OutputFormat format, CliCommand command) {
    return format == OutputFormat::Text || command == CliCommand::Box || command == CliCommand::Season ||
           (command == CliCommand::Verify && format == OutputFormat::Json);
  }
  void checkWhole() {
    if (m_options.csvReader == CsvReader::French)
      m_options.language = Language::French; // its heads are French
    if (!m_command)
      m_options.wrong = {Text::CommandMissing};
    else if (!fits(m_options.format, *m_command))
      m_options.wrong = {Text::GoesWith, m_options.format == OutputFormat::Json ? "--json" : "--csv",
                         m_options.format == OutputFormat::Json ? "box|season|verify" : "box|season"};
    else if (!m_seasonOption.empty() && *m_command != CliCommand::Season)
      m_options.wrong = {Text::GoesWith, m_seasonOption, "season"};
    else if (m_options.files.empty())
      m_options.wrong = {*m_command == CliCommand::Season ? Text::FolderMissing : Text::FileMissing};
    else if (m_options.files.size() > 1 && *m_command != CliCommand::Verify)
      m_options.wrong = {Text::OneFile};
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

} // namespace hooptab
