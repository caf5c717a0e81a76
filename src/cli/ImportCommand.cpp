#include "cli/ExchangeCommands.h"
#include "exchange/GameImport.h"
#include "feed/JsonWriter.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <exception>
#include <iostream>
#include <set>
#include <unistd.h>

namespace hooptab {

namespace {

class ImportCommand {
 public:
  ImportCommand(const Options& options, ProfileStore& store, const Texts& texts, Output& output,
                const Complain& complain)
      : m_options(options), m_store(store), m_texts(texts), m_output(output), m_complain(complain) {}

  bool run() {
    const NameJoins joins = NameJoins::of(m_store, m_options.exchange.folder);
    std::set<std::string> written;
    ImportRequest request{m_options.exchange.folder, m_options.exchange.date, m_options.exchange.replaces,
                          &joins};
    request.written = &written;
    const std::vector<std::string> files = filesOf(m_options.files);
    if (files.empty()) {
      m_complain(words(Text::NoSourceFile));
      m_isGood = false;
    }
    if (isJson())
      m_json.beginArray();
    const std::vector<SourceGroup> groups =
        recogniseFiles(m_store.files(), files, m_options.exchange.importFormat, TaskWatch());
    std::size_t done = 0;
    for (const SourceGroup& group : groups) {
      const ImportedGame game = import(group, request);
      if (game.isWritten)
        written.insert(game.path);
      m_isGood = m_isGood && !game.problem;
      tellNotes(game);
      if (isJson())
        writeJson(game);
      else
        m_output.write(textOf(game));
      tellProgress(++done, groups.size());
    }
    if (isJson()) {
      m_json.endArray();
      m_output.write(m_json.text());
    }
    return m_isGood;
  }

 private:
  // For who looks at a terminal while the output goes elsewhere.
  static void tellProgress(std::size_t done, std::size_t total) {
    if (::isatty(STDERR_FILENO) == 1 && ::isatty(STDOUT_FILENO) == 0)
      std::cerr << '\r' << done << '/' << total << (done == total ? "\n" : "") << std::flush;
  }
  // One that goes wrong, as for lack of memory, does not end the others.
  ImportedGame import(const SourceGroup& group, const ImportRequest& request) {
    try {
      return importGame(m_store, group, request);
    } catch (const std::exception& error) {
      ImportedGame game{group};
      game.problem = {Text::WentWrong, error.what()};
      return game;
    }
  }
  bool isJson() const { return m_options.format == OutputFormat::Json; }
  std::string words(Text text, const std::string& x = {}, const std::string& y = {}) const {
    return withPlaceholders(m_texts.text(text), x, y);
  }
  static std::string filesText(const ImportedGame& game) {
    std::string all;
    for (const std::string& file : game.group.files)
      all += (all.empty() ? "" : ", ") + file;
    return all;
  }
  void tellNotes(const ImportedGame& game) const {
    const std::string files = filesText(game);
    if (game.problem)
      m_complain(words(Text::SubjectAndWords, files, problemWords(game, m_texts)));
    else if (!game.isFinished)
      m_complain(words(Text::SubjectAndWords, files, words(Text::NotFinishedInFile)));
    for (const ExchangeNote& note : game.notes)
      m_complain(words(Text::SubjectAndWords, files, inWords(note, m_texts)));
  }
  // A whole report of a game that was imported; nothing of one that was not, which has been told.
  std::string textOf(const ImportedGame& game) const {
    if (game.problem)
      return {};
    std::string text =
        words(Text::SubjectAndWords, filesText(game), words(Text::ImportedAs, game.path)) + '\n';
    text += "  " + game.names[Side::Visitor] + ' ' + std::to_string(game.points[Side::Visitor]) + " - " +
            game.names[Side::Home] + ' ' + std::to_string(game.points[Side::Home]) + '\n';
    if (game.compared > 0)
      text +=
          "  " +
          words(Text::NumbersAgree, std::to_string(game.differences.size()), std::to_string(game.compared)) +
          '\n';
    for (const Difference& difference : game.differences)
      text += "    " + lineOf(game, difference) + '\n';
    for (const auto& [kind, count] : game.unknown)
      text += "  " + words(Text::PassedOver, std::to_string(count) + " x " + kind) + '\n';
    return printableLines(text);
  }
  std::string lineOf(const ImportedGame& game, const Difference& difference) const {
    const Side team = difference.team;
    const std::string who =
        game.abbreviations[team] + (difference.player.empty() ? "" : " " + difference.player);
    return words(
        Text::SubjectAndWords, who + ", " + difference.counter,
        words(Text::OursAndTheirs, std::to_string(difference.ours), std::to_string(difference.theirs)));
  }
  static std::string printableLines(const std::string& text) {
    std::string shown;
    for (std::size_t begin = 0; begin < text.size();) {
      const std::size_t end = text.find('\n', begin);
      shown += printable(std::string_view(text).substr(begin, end - begin)) + '\n';
      begin = end + 1;
    }
    return shown;
  }
  void writeJson(const ImportedGame& game) {
    m_json.beginObject();
    m_json.name("files");
    m_json.beginArray();
    for (const std::string& file : game.group.files)
      m_json.value(file);
    m_json.endArray();
    textOrNull("format", game.group.format ? std::string(formatKey(*game.group.format)) : std::string());
    textOrNull("game", game.isWritten ? game.path : std::string());
    textOrNull("error", game.problem ? problemWords(game, m_texts) : std::string());
    m_json.name("unknown");
    m_json.beginObject();
    for (const auto& [kind, count] : game.unknown)
      m_json.member(kind, count);
    m_json.endObject();
    m_json.name("differences");
    m_json.beginArray();
    for (const Difference& difference : game.differences) {
      m_json.beginObject();
      m_json.beginLine();
      m_json.member("team", numberOf(difference.team));
      m_json.member("player", difference.player);
      m_json.member("counter", difference.counter);
      m_json.member("ours", difference.ours);
      m_json.member("theirs", difference.theirs);
      m_json.endObject();
      m_json.endLine();
    }
    m_json.endArray();
    m_json.endObject();
  }
  void textOrNull(std::string_view name, const std::string& text) {
    m_json.name(name);
    if (text.empty())
      m_json.null();
    else
      m_json.value(text);
  }

  const Options& m_options;
  ProfileStore& m_store;
  const Texts& m_texts;
  Output& m_output;
  const Complain& m_complain;
  JsonWriter m_json;
  bool m_isGood = true;
};

} // namespace

bool importGames(const Options& options, ProfileStore& store, const Texts& texts, Output& output,
                 const Complain& complain) {
  return ImportCommand(options, store, texts, output, complain).run();
}

} // namespace hooptab
