#include "cli/ExchangeCommands.h"
#include "exchange/GameExport.h"
#include "exchange/GameReading.h"
#include "extracts/Captions.h"
#include "extracts/Chapters.h"
#include "extracts/ClipTimeline.h"
#include "extracts/GameTables.h"
#include "extracts/OverlayFiles.h"
#include "game/GameFile.h"
#include "scorecard/Scorecard.h"
#include "settings/StorageWords.h"
#include "storage/AtomicFile.h"
#include "storage/Placeholders.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace hooptab {

namespace {

namespace fs = std::filesystem;

class ExportRun {
 public:
  ExportRun(const Options& options, ProfileStore& store, const Texts& texts, Output& output,
            const Complain& complain)
      : m_exchange(options.exchange), m_path(options.files.front()), m_store(store), m_texts(texts),
        m_output(output), m_complain(complain) {}

  bool run() {
    if (m_exchange.exportFormat.content == ExportContent::Tables)
      writeTables();
    else if (const std::optional<Scorecard> card = load(m_path))
      exportOne(*card);
    return m_isGood;
  }

 private:
  std::string words(Text text, const std::string& x = {}, const std::string& y = {}) const {
    return withPlaceholders(m_texts.text(text), x, y);
  }
  void fault(const std::string& subject, const std::string& what) {
    m_complain(words(Text::SubjectAndWords, subject, what));
    m_isGood = false;
  }
  std::optional<Scorecard> load(const std::string& path) {
    std::optional<Scorecard> card(std::in_place, m_store, path);
    const GameFileProblem problem = card->load();
    if (problem == GameFileProblem::None)
      return card;
    fault(path, words(problem == GameFileProblem::Absent          ? Text::NoSuchFile
                      : problem == GameFileProblem::InvalidFormat ? Text::NotAGame
                      : problem == GameFileProblem::TooLarge      ? Text::TooLargeToBeAGame
                                                                  : Text::CannotBeReadGiveAFile));
    return std::nullopt;
  }
  ExtractSource sourceOf(const Scorecard& card) {
    return extractSource(*card.counted(), m_store.read(card.path()).text);
  }

  void exportOne(const Scorecard& card) {
    if (m_exchange.exportFormat.content == ExportContent::ForeignGame && card.game().details.inputType != 0)
      return fault(m_path, words(Text::TotalsNotExported));
    const std::string stem = fs::path(m_path).stem().string();
    const ExtractSource source = sourceOf(card);
    switch (m_exchange.exportFormat.content) {
    case ExportContent::ForeignGame: {
      const ForeignGame game = foreignGameOf(*card.counted(), m_store.read(card.path()).text);
      for (const ExportedFile& file : exportAs(m_exchange.exportFormat.format, game, stem))
        write(file.name, file.content);
      break;
    }
    case ExportContent::Overlay:
      for (const OverlayFile& file :
           overlayFiles(*card.counted(), clockOfLastEvent(*card.counted()), m_texts))
        write(file.name, file.content);
      break;
    case ExportContent::Clips: {
      const ClipList list = clipsOf(source, m_exchange.clips, m_texts);
      tellNotes(list.notes);
      write(stem + "-clips.xml", timelineXml(list, card.game().details));
      break;
    }
    case ExportContent::Chapters: {
      const ChapterList list = chaptersOf(source, m_exchange.clips.anchors, m_texts);
      tellNotes(list.notes);
      if (list.text.empty())
        m_isGood = false; // told
      else
        write(stem + "-chapters.txt", list.text);
      break;
    }
    case ExportContent::Captions: {
      const CaptionList list = captionsOf(source, m_exchange.clips.anchors, m_texts);
      tellNotes(list.notes);
      write(stem + "-captions.vtt", list.text);
      break;
    }
    case ExportContent::Tables: break;
    }
  }
  void tellNotes(const std::vector<VideoNote>& notes) {
    for (const VideoNote& note : notes)
      m_complain(words(Text::SubjectAndWords, m_path, inWords(note, m_texts)));
  }

  // A file that stands there may be the original from which the game was imported.
  bool isFree(const std::string& path) {
    std::error_code unknown;
    if (!fs::exists(path, unknown) || m_exchange.replaces)
      return true;
    m_complain(words(Text::FileThere, path));
    m_isGood = false;
    return false;
  }
  std::string target(std::string_view name) const { return (fs::path(m_exchange.folder) / name).string(); }
  void write(const std::string& name, const std::string& content) {
    const std::string path = target(name);
    if (!isFree(path))
      return;
    FileStamp stamp;
    const WriteResult written = replaceWholeFile(m_store.files(), path, content, stamp);
    if (written.isOnDisk())
      m_output.write(printable(path) + '\n');
    else
      failed(storageWords(written.error(), m_texts));
  }
  void failed(const std::string& why) {
    m_complain(why);
    m_isGood = false;
  }

  // Of a game, or of all games of a folder, one by one.
  std::vector<std::string> games() const {
    std::error_code none;
    if (!fs::is_directory(m_path, none))
      return {m_path};
    std::vector<std::string> games;
    for (fs::directory_iterator entry(m_path, none), end; !none && entry != end; entry.increment(none)) {
      if (isGameName(entry->path().filename().string()))
        games.push_back(entry->path().string());
    }
    std::ranges::sort(games);
    return games;
  }
  void writeTables() {
    std::array<std::string, kGameTableCount> paths;
    for (std::size_t i = 0; i < kGameTableCount; ++i) {
      paths[i] = target(tableFileName(kGameTables[i]));
      if (!isFree(paths[i]))
        return;
    }
    // Under names of their own until all is written: what stands there is not touched before.
    std::array<std::string, kGameTableCount> unfinished;
    std::array<std::ofstream, kGameTableCount> files;
    TableWriter::Sinks sinks = {};
    for (std::size_t i = 0; i < kGameTableCount; ++i) {
      unfinished[i] = target("." + std::string(tableFileName(kGameTables[i])) + "-XXXXXX");
      if (const int descriptor = ::mkstemp(unfinished[i].data()); descriptor >= 0)
        ::close(descriptor);
      files[i].open(unfinished[i], std::ios::binary);
      sinks[i] = &files[i];
    }
    TableWriter tables(sinks);
    int count = 0;
    for (const std::string& path : games()) {
      if (const std::optional<Scorecard> card = load(path)) {
        tables.append(sourceOf(*card));
        ++count;
      }
    }
    for (std::ofstream& file : files)
      file.close();
    const bool isWhole = std::ranges::none_of(files, &std::ofstream::fail);
    for (std::size_t i = 0; i < kGameTableCount; ++i)
      finish(unfinished[i], paths[i], isWhole && count > 0);
    if (!isWhole)
      failed(words(Text::GameNotWritten, paths[0], std::strerror(EIO)));
    m_isGood = m_isGood && count > 0;
  }
  void finish(const std::string& unfinished, const std::string& path, bool isGood) {
    constexpr mode_t kUsual = 0644;
    if (isGood && ::chmod(unfinished.c_str(), kUsual) == 0 &&
        std::rename(unfinished.c_str(), path.c_str()) == 0)
      return m_output.write(printable(path) + '\n');
    if (isGood)
      failed(words(Text::GameNotWritten, path, std::strerror(errno)));
    std::remove(unfinished.c_str());
  }

  const ExchangeOptions& m_exchange;
  const std::string& m_path;
  ProfileStore& m_store;
  const Texts& m_texts;
  Output& m_output;
  const Complain& m_complain;
  bool m_isGood = true;
};

} // namespace

bool exportGame(const Options& options, ProfileStore& store, const Texts& texts, Output& output,
                const Complain& complain) {
  return ExportRun(options, store, texts, output, complain).run();
}

} // namespace hooptab
