#include "cli/Options.h"

#include "cli/InsightReports.h"
#include "game/GameEvent.h"
#include "settings/ChoiceTexts.h"
#include "storage/CalendarDay.h"
#include "storage/Module1.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

namespace hooptab {

namespace {

std::optional<CliCommand> commandOf(std::string_view word) {
  constexpr std::pair<std::string_view, CliCommand> kCommands[] = {
      {"box", CliCommand::Box},       {"events", CliCommand::Events}, {"verify", CliCommand::Verify},
      {"season", CliCommand::Season}, {"import", CliCommand::Import}, {"export", CliCommand::Export},
      {"lines", CliCommand::Lines},   {"flow", CliCommand::Flow},     {"compare", CliCommand::Compare},
      {"serve", CliCommand::Serve},
  };
  const auto found = std::ranges::find(kCommands, word, &std::pair<std::string_view, CliCommand>::first);
  return found == std::end(kCommands) ? std::nullopt : std::optional(found->second);
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
    } else if (const auto size = valueOf(word, "--size")) {
      m_hasSize = true;
      setNumber(m_options.together, "--size", *size, kMostTogether);
      if (m_options.together == 0 && !m_options.wrong)
        m_options.wrong = {Text::OptionNeeds, "--size", "1|2|3|4|5"};
    } else if (!takeExchangeOption(word) && !takeServeOption(word)) {
      takeSeasonOption(word);
    }
  }
  bool takeExchangeOption(std::string_view word) {
    ExchangeOptions& exchange = m_options.exchange;
    if (word == "--replace") {
      exchange.replaces = true;
    } else if (const auto format = valueOf(word, "--format")) {
      exchange.formatKey = *format;
    } else if (const auto date = valueOf(word, "--date")) {
      exchange.date = *date;
      if (!calendarDay(*date))
        m_options.wrong = {Text::NeedsDate, "--date"};
      m_importOption = word;
    } else if (takeClipOption(word)) {
      m_exportOption = word;
      if (!word.starts_with("--anchor"))
        m_filterOption = word;
    } else {
      return false;
    }
    m_exchangeOption = word;
    return true;
  }
  bool takeServeOption(std::string_view word) {
    ServeOptions& serve = m_options.serve;
    if (const auto port = valueOf(word, "--port")) {
      constexpr int kMostPort = 65535;
      setNumber(serve.port, "--port", *port, kMostPort);
    } else if (const auto address = valueOf(word, "--address")) {
      serve.address = *address;
    } else if (const auto pass = valueOf(word, "--pass")) {
      serve.passPhrase = *pass;
    } else if (const auto host = valueOf(word, "--host")) {
      serve.hosts.push_back(*host);
    } else if (const auto names = valueOf(word, "--names")) {
      serve.names = *names == "number"    ? NameForm::Number
                    : *names == "initial" ? NameForm::Initial
                                          : NameForm::Full;
      if (*names != "number" && *names != "initial" && *names != "full")
        m_options.wrong = {Text::OptionNeeds, "--names", "full|initial|number"};
    } else {
      return false;
    }
    m_serveOption = word;
    return true;
  }
  bool takeClipOption(std::string_view word) {
    ClipRequest& clips = m_options.exchange.clips;
    if (const auto text = valueOf(word, "--anchor")) {
      const std::optional<VideoAnchor> anchor = readAnchor(*text);
      if (anchor)
        clips.anchors.push_back(*anchor);
      else
        m_options.wrong = {Text::OptionNeeds, "--anchor", "312=1:04:12"};
    } else if (const auto player = valueOf(word, "--player")) {
      clips.filter.player = *player;
      if (!PlayerReference::read(*player))
        m_options.wrong = {Text::OptionNeeds, "--player", "0-12"};
    } else if (const auto line = valueOf(word, "--line")) {
      clips.filter.line = *line;
      if (!isClipLine(*line))
        m_options.wrong = {Text::OptionNeeds, "--line", "0-04-05-10-12-15"};
    } else if (const auto kinds = valueOf(word, "--kind")) {
      const auto read = readClipKinds(*kinds);
      clips.filter.kinds = read.value_or(std::vector<ClipKind>());
      if (!read)
        m_options.wrong = {Text::OptionNeeds, "--kind", "STO,GF3A"};
    } else if (const auto before = valueOf(word, "--before")) {
      setVideoSeconds(clips.before, "--before", *before);
    } else if (const auto after = valueOf(word, "--after")) {
      setVideoSeconds(clips.after, "--after", *after);
    } else {
      return false;
    }
    return true;
  }
  void setVideoSeconds(VideoTime& time, const std::string& option, std::string_view text) {
    constexpr int kMost = 600;
    int seconds = 0;
    setNumber(seconds, option, text, kMost);
    time = VideoTime{seconds} * 1000;
  }
  void setFormat(OutputFormat format) {
    if (m_options.format != OutputFormat::Text && m_options.format != format)
      m_options.wrong = {Text::NotTogether, "--json", "--csv"};
    m_options.format = format;
  }
  void takeSeasonOption(std::string_view word) {
    SeasonOptions& season = m_options.season;
    if (const auto to = valueOf(word, "--to")) { // a day or a folder: the command says which
      m_to = *to;
      return;
    }
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
    if (format == OutputFormat::Text || command == CliCommand::Box || command == CliCommand::Season)
      return true;
    return format == OutputFormat::Json && command != CliCommand::Events && command != CliCommand::Export &&
           command != CliCommand::Serve;
  }
  void checkWhole() {
    if (m_options.csvReader == CsvReader::French)
      m_options.language = Language::French; // its heads are French
    if (!m_command)
      m_options.wrong = {Text::CommandMissing};
    else if (m_to)
      setTo(*m_to);
    if (!m_options.wrong)
      checkTogether();
  }
  void setTo(const std::string& to) {
    if (*m_command == CliCommand::Season)
      setDay(m_options.season.toDay, "--to", to);
    else if (!isExchange())
      m_options.wrong = {Text::GoesWith, "--to", "season|import|export"};
    else if (to.empty())
      m_options.wrong = {Text::OptionNeedsFolder, "--to"};
    else
      m_options.exchange.folder = to;
  }
  [[nodiscard]] bool isExchange() const {
    return *m_command == CliCommand::Import || *m_command == CliCommand::Export;
  }
  void setExchangeFormat() {
    ExchangeOptions& exchange = m_options.exchange;
    const bool isExport = *m_command == CliCommand::Export;
    const std::string keys = isExport ? exportFormatKeys() : importFormatKeys();
    const std::optional<ExportFormat> format = exportFormatOf(exchange.formatKey);
    if (exchange.formatKey.empty() && isExport)
      m_options.wrong = {Text::OptionNeeds, "export --format", keys};
    else if (isExport && format)
      setExport(*format);
    else if (format && format->content == ExportContent::ForeignGame)
      exchange.importFormat = format->format;
    else if (isExport || (!exchange.formatKey.empty() && exchange.formatKey != "auto"))
      m_options.wrong = {Text::NoExchangeFormat, exchange.formatKey, keys};
  }
  void setExport(const ExportFormat& format) {
    m_options.exchange.exportFormat = format;
    const bool isClips = format.content == ExportContent::Clips;
    const bool isOfVideo =
        isClips || format.content == ExportContent::Chapters || format.content == ExportContent::Captions;
    if (!m_exportOption.empty() && !isOfVideo)
      m_options.wrong = {Text::GoesWith, m_exportOption, "--format clips|chapters|captions"};
    else if (!m_filterOption.empty() && !isClips)
      m_options.wrong = {Text::GoesWith, m_filterOption, "--format clips"};
  }
  void checkTogether() {
    if (!fits(m_options.format, *m_command))
      m_options.wrong = {Text::GoesWith, m_options.format == OutputFormat::Json ? "--json" : "--csv",
                         m_options.format == OutputFormat::Json
                             ? "box|lines|flow|compare|season|verify|import"
                             : "box|season"};
    else if (!m_seasonOption.empty() && *m_command != CliCommand::Season)
      m_options.wrong = {Text::GoesWith, m_seasonOption, "season"};
    else if (!m_exchangeOption.empty() && !isExchange())
      m_options.wrong = {Text::GoesWith, m_exchangeOption, "import|export"};
    else if (!m_importOption.empty() && *m_command != CliCommand::Import)
      m_options.wrong = {Text::GoesWith, m_importOption, "import"};
    else if (!m_exportOption.empty() && *m_command != CliCommand::Export)
      m_options.wrong = {Text::GoesWith, m_exportOption, "export"};
    else if (!m_serveOption.empty() && *m_command != CliCommand::Serve)
      m_options.wrong = {Text::GoesWith, m_serveOption, "serve"};
    else if (m_hasSize && *m_command != CliCommand::Lines)
      m_options.wrong = {Text::GoesWith, "--size", "lines"};
    else if (*m_command == CliCommand::Compare && m_options.files.size() > 1)
      takePlayers();
    else if (m_options.files.empty())
      m_options.wrong = {*m_command == CliCommand::Season ? Text::FolderMissing : Text::FileMissing};
    else if (m_options.files.size() > 1 && *m_command != CliCommand::Verify &&
             *m_command != CliCommand::Import && *m_command != CliCommand::Serve)
      m_options.wrong = {Text::OneFile};
    else if (isExchange())
      setExchangeFormat();
  }

  // Behind the game's file.
  void takePlayers() {
    m_options.players.assign(m_options.files.begin() + 1, m_options.files.end());
    m_options.files.resize(1);
    const auto isPlayer = [](const std::string& word) { return PlayerReference::read(word).has_value(); };
    if (m_options.players.size() != 2 || !std::ranges::all_of(m_options.players, isPlayer))
      m_options.wrong = {Text::CliCompareNeedsTwo};
  }

  const std::vector<std::string>& m_words;
  std::size_t m_next = 0;
  std::optional<CliCommand> m_command;
  std::optional<std::string> m_to;
  std::string m_seasonOption;   // the last one met
  std::string m_exchangeOption; // the same, of either command, and of each
  std::string m_importOption;
  std::string m_exportOption;
  std::string m_serveOption;  // the last one met
  std::string m_filterOption; // of clips alone
  bool m_hasSize = false;
  bool m_isAnswered = false;
  Options m_options;
};

} // namespace

Options parseOptions(const std::vector<std::string>& words, Language usualLanguage) {
  return Parser(words, usualLanguage).parse();
}

} // namespace hooptab
