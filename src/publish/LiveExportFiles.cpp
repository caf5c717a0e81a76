#include "publish/LiveExportFiles.h"

#include "exchange/GameExport.h"
#include "exchange/GameReading.h"
#include "extracts/OverlayFiles.h"
#include "storage/AtomicFile.h"

#include <cerrno>
#include <exception>
#include <filesystem>

namespace hooptab {

LiveExportFiles::LiveExportFiles(LiveExportTarget target, Language language) : m_target(std::move(target)) {
  m_texts.setLanguage(language);
}

std::vector<LiveExportFiles::File> LiveExportFiles::filesOf(const RunningGame& game) {
  std::vector<File> files;
  if (m_target.format) {
    const std::string& path = game.counted.game.path;
    const ForeignGame foreign = foreignGameOf(game.counted, m_store.read(path).text);
    for (ExportedFile& file :
         exportAs(*m_target.format, foreign, std::filesystem::path(path).stem().string()))
      files.push_back({std::move(file.name), std::move(file.content)});
    return files;
  }
  const OverlayClock clock{game.period, game.clockSeconds, game.phase == LiveGame::Phase::Running};
  for (OverlayFile& file : overlayFiles(game.counted, clock, m_texts))
    files.push_back({std::move(file.name), std::move(file.content)});
  return files;
}

bool LiveExportFiles::write(const RunningGame& game) {
  if (m_game.empty())
    m_game = game.counted.game.path;
  if (game.counted.game.path != m_game)
    return true;
  int error = 0;
  std::vector<File> files;
  try {
    files = filesOf(game);
  } catch (const std::exception&) {
    error = EINVAL; // a game that no file of that kind holds
  }
  for (File& file : files) {
    const auto written = m_written.find(file.name);
    if (written != m_written.end() && written->second == file.content)
      continue;
    FileStamp stamp;
    const std::string path = (std::filesystem::path(m_target.folder) / file.name).string();
    const WriteResult result = replaceWholeFile(m_files, path, file.content, stamp);
    if (result.isOnDisk())
      m_written[file.name] = std::move(file.content);
    else
      error = result.error().number != 0 ? result.error().number : EACCES; // no call failed: it must not be
  }
  m_lastError->store(error);
  return error == 0;
}

} // namespace hooptab
