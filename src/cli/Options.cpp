#include "cli/Options.h"

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
    constexpr std::string_view kLanguage = "--lang";
    if (word == "--help" || word == "-h") {
      answer(CliCommand::Help);
    } else if (word == "--version") {
      answer(CliCommand::Version);
    } else if (word == "--json" || word == "--csv") {
      const BoxFormat format = word == "--json" ? BoxFormat::Json : BoxFormat::Csv;
      if (m_options.format != BoxFormat::Text && m_options.format != format)
        m_options.error = "--json and --csv do not go together";
      m_options.format = format;
    } else if (word == kLanguage) {
      setLanguage(m_next < m_words.size() ? std::string_view(m_words[m_next++]) : std::string_view());
    } else if (word.starts_with("--lang=")) {
      setLanguage(word.substr(kLanguage.size() + 1));
    } else {
      m_options.error = "there is no option " + std::string(word);
    }
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
    if (!m_command)
      m_options.error = "a command is missing";
    else if (m_options.format != BoxFormat::Text && *m_command != CliCommand::Box)
      m_options.error = "--json and --csv go with box only";
    else if (m_options.files.empty())
      m_options.error = "a file is missing";
    else if (m_options.files.size() > 1 && *m_command != CliCommand::Verify)
      m_options.error = "only verify takes more than one file";
  }

  const std::vector<std::string>& m_words;
  std::size_t m_next = 0;
  std::optional<CliCommand> m_command;
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

Options:
  --lang en|fr     the language of tables and words (usually that of LANG)
  --help           this text
  --version        the program's version

Exit status: 0 when all is well; 1 when verify finds something, or a file cannot be read; 2 for a
command line that is not understood.
)";
}

} // namespace hooptab
